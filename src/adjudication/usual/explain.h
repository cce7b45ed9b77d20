#pragma once

#include "adjudication/explanation.h"
#include "adjudication/resolution.h"
#include "model/game_state.h"

namespace orb::adjudication::usual {

/// Explains one order as adjudication::ExplainOrder does, for a completed resolution by the usual
/// rules. Order 0 of the adjustments stands for their heading.
Explanation ExplainOrder(const model::GameState& after, const Resolution& resolution, int order);

}  // namespace orb::adjudication::usual
