#pragma once

#include "adjudication/resolution.h"
#include "model/game_state.h"

namespace orb::adjudication::usual {

/// Resolves the stage that the game is in, in place, by the usual rules: moves, retreats or
/// adjustments. Asks nothing and is always completed. Throws FatalError in any other stage and for
/// more than 80 orders; the situation must be dropped then.
Resolution ResolveStage(model::GameState& game);

}  // namespace orb::adjudication::usual
