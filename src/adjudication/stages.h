#pragma once

#include "adjudication/resolution.h"
#include "model/game_state.h"
#include "model/messages.h"

namespace orb::adjudication {

/// Resolves the stage that the game is in, in place: moves, retreats or adjustments. Throws
/// FatalError in any other stage. When the result is not completed, and on a throw, the situation
/// is half resolved and must be dropped.
Resolution ResolveStage(model::GameState& game, model::Messages& messages);

}  // namespace orb::adjudication
