#pragma once

#include "adjudication/resolution.h"
#include "model/game_state.h"
#include "model/messages.h"

namespace orb::adjudication {

// An adjustment order: POWER BUILD TYPE(LOC), or POWER DISBAND TYPE(LOC); power and verb in any
// case.

/// Why the power cannot build the unit there as things stand; None where it can.
orders::OrderResult BuildFault(const model::GameState& game, const orders::OrderLine& order);

/// How many units the valid orders add to the power in row 1..7; below 0 when they take some away.
int ChangeOf(const orders::OrderTable& table, int power);

/// Resolves the adjustments stage in place: builds and removals are carried out, the report block
/// is added, the season is finished. Not completed when a question was answered No or a power has
/// too many units; then, and on a throw, the situation must be dropped.
Resolution ResolveAdjustments(model::GameState& game, model::Messages& messages);

/// Parses and checks adjustment orders as ResolveAdjustments does, up to the first No or error;
/// the orders carry what was found.
bool CheckAdjustments(const model::GameState& game, Resolution& resolution,
                      model::Messages& messages);

}  // namespace orb::adjudication
