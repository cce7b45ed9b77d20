#pragma once

#include "model/game_state.h"

#include <QString>

namespace orb::ui {

/// What a person calls the game: "CONCORDAT, Spring 1901".
QString gameName(const model::GameState& game);

}  // namespace orb::ui
