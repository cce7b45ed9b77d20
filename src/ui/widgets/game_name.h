#pragma once

#include "model/game_state.h"

#include <QString>

namespace orb::ui {

/// What a person calls the game: "CONCORDAT, Spring 1901".
QString gameName(const model::GameState& game);

/// A stage of a game in the words of the map: "Spring 1901, before retreats".
QString stageCaption(const std::string& season, int year, model::Stage stage);

}  // namespace orb::ui
