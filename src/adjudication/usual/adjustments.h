#pragma once

#include "adjudication/resolution.h"
#include "model/game_state.h"

namespace orb::adjudication::usual {

/// Resolves the adjustments stage in place by the usual rules. A power with more centres than units
/// builds as by ORB's own rules, the first builds as written up to the number allowed, of two in
/// one province the first. A power with more units than centres builds nothing; the first removals
/// as written count up to the number that must go, and what is missing is chosen (removals.h). Asks
/// nothing and is always completed. Throws IndexOutOfRange for more than 80 orders.
Resolution ResolveAdjustments(model::GameState& game);

}  // namespace orb::adjudication::usual
