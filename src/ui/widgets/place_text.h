#pragma once

#include "model/game_state.h"

#include <QString>

namespace orb::ui {

/// What there is to say of a location in one line: its full name, its owner when it is a supply
/// centre, the units in it. Empty for row 0.
QString placeText(const model::GameState& game, int row);

}  // namespace orb::ui
