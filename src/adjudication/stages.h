#pragma once

#include "adjudication/resolution.h"
#include "model/game_state.h"
#include "model/messages.h"

namespace orb::adjudication {

/// Resolves the stage that the game is in: moves, retreats or adjustments. Throws FatalError in any
/// other stage. When the result is not completed, or on a throw, the situation is as before.
Resolution ResolveStage(model::GameState& game, model::Messages& messages);

/// The same in place, for callers that no longer need the situation as it was, or have a copy of
/// it: when the result is not completed, and on a throw, it is half resolved and must be dropped.
Resolution ResolveStageInPlace(model::GameState& game, model::Messages& messages);

/// Starts a resolution: takes over the list's lines as orders and the units as they stand.
Resolution StartResolution(model::Stage stage, const model::GameState& game,
                           std::vector<std::string> lines);

/// The stage that follows moves or retreats: "finished" in Spring; otherwise "adjustments", with
/// the centres now owned by the units that stand in them.
void EndMovement(model::GameState& game);

}  // namespace orb::adjudication
