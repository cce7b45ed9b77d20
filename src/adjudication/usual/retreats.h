#pragma once

#include "adjudication/resolution.h"
#include "model/game_state.h"

namespace orb::adjudication::usual {

/// Resolves the retreats stage in place by the usual rules: dislodged units retreat to an adjacent
/// place that is empty, no standoff, and not where the attack came from; two or more such retreats
/// to one province are all lost; whoever has no possible retreat is disbanded. Asks nothing and is
/// always completed. Throws IndexOutOfRange for more than 80 orders.
Resolution ResolveRetreats(model::GameState& game);

}  // namespace orb::adjudication::usual
