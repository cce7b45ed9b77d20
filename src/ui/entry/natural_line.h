#pragma once

#include "model/game_state.h"

#include <string>

namespace orb::ui {

/// What a typed line means. One that names no power is read as people write, as an order of the
/// power in this row; when that does not make it a sure order, or for row 0, it stays as it is
/// typed.
std::string naturalLine(const model::GameState& game, const std::string& typed, int power);

/// Why such a line is no sure order, to follow a colon; empty where it is one, or is not read so.
std::string naturalFault(const model::GameState& game, const std::string& typed, int power);

/// Whether it asks for nothing to be done, as "Italy waives".
bool isWaiver(const model::GameState& game, const std::string& typed, int power);

}  // namespace orb::ui
