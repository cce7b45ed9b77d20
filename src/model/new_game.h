#pragma once

#include "model/game_state.h"

#include <filesystem>

namespace orb::model {

/// Sets up the starting position of start.dat in the given directory: its season and year, its
/// units, every supply centre that holds a unit owned by that unit's power. Throws FileError or
/// IndexOutOfRange, the situation unchanged.
void NewGame(GameState& game, const std::filesystem::path& dataDirectory);

/// Sets up an empty board: season and year of start.dat, no units, every location owned by its
/// home power. Throws as NewGame does.
void BlankGame(GameState& game, const std::filesystem::path& dataDirectory);

}  // namespace orb::model
