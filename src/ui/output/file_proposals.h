#pragma once

#include "model/game_state.h"

#include <string>
#include <string_view>

namespace orb::ui {

/// The name proposed for a game that is saved: three letters of its title, the season's first
/// letter and two digits of the year: "con_s01.orb".
std::string proposedGameFile(const model::GameState& game);

/// The name proposed for what is made of a game: "s01" and the extension, say ".bmp".
std::string proposedExportFile(const model::GameState& game, std::string_view extension);

/// The filters for game files, in the order of the dialogs.
enum class GameFilter { Games, Data, All };

/// The filter that a file dialog begins with, by the current file name.
GameFilter gameFilterFor(std::string_view fileName);

}  // namespace orb::ui
