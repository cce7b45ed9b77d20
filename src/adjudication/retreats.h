#pragma once

#include "adjudication/resolution.h"
#include "model/game_state.h"
#include "model/messages.h"

namespace orb::adjudication {

// A retreat order: POWER TYPE(LOC) RETREAT DEST, or POWER TYPE(LOC) DISBAND; the verb in any case.

/// Resolves the retreats stage in place: dislodged units retreat or are removed, the outcomes are
/// added to the report, the stage advances. Not completed when a question was answered No; then,
/// and on a throw, the situation must be dropped.
Resolution ResolveRetreats(model::GameState& game, model::Messages& messages);

/// Parses and checks retreat orders as ResolveRetreats does, up to the first No; the orders carry
/// what was found.
bool CheckRetreats(const model::GameState& game, Resolution& resolution, model::Messages& messages);

/// Decides which of the checked retreats fail: those back to the attacker, to a unit, or to the
/// same place as another.
void ResolveRetreatStandoffs(const model::GameState& game, Resolution& resolution);

}  // namespace orb::adjudication
