#pragma once

#include "adjudication/resolution.h"
#include "model/game_state.h"

namespace orb::adjudication::usual {

/// Resolves the moves stage in place by the usual rules: reads the list's lines, decides all moves
/// together, moves or dislodges the units, marks the standoffs, writes the report and advances the
/// stage. Asks nothing and is always completed. Throws IndexOutOfRange for more than 80 orders.
Resolution ResolveMoves(model::GameState& game);

}  // namespace orb::adjudication::usual
