#pragma once

#include "adjudication/resolution.h"
#include "model/game_state.h"
#include "model/messages.h"

namespace orb::adjudication {

/// Resolves the moves stage in place: the list's lines are parsed and checked, supports cut, moves
/// decided, units moved or dislodged, standoffs marked, the report written, the stage advanced.
/// Not completed when a question was answered No; then, and on a throw, the situation is half
/// resolved and must be dropped.
Resolution ResolveMoves(model::GameState& game, model::Messages& messages);

/// Checks the orders of a started resolution of the moves as ResolveMoves does, up to the first No.
/// The resolution's orders carry what was found.
bool CheckOrders(Resolution& resolution, model::Messages& messages);

}  // namespace orb::adjudication
