#include "adjudication/stages.h"

#include "adjudication/adjustments.h"
#include "adjudication/moves.h"
#include "adjudication/retreats.h"
#include "adjudication/stage_steps.h"

namespace orb::adjudication {

Resolution ResolveStage(model::GameState& game, model::Messages& messages) {
  if (game.Stage == model::Stage::Moves) return ResolveMoves(game, messages);
  if (game.Stage == model::Stage::Retreats) return ResolveRetreats(game, messages);
  if (game.Stage == model::Stage::Adjustments) return ResolveAdjustments(game, messages);
  ThrowNothingToResolve(game);
}

}  // namespace orb::adjudication
