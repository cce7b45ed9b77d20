#include "adjudication/usual/stages.h"

#include "adjudication/stage_steps.h"
#include "adjudication/usual/adjustments.h"
#include "adjudication/usual/moves.h"
#include "adjudication/usual/retreats.h"

namespace orb::adjudication::usual {

Resolution ResolveStage(model::GameState& game) {
  if (game.Stage == model::Stage::Moves) return ResolveMoves(game);
  if (game.Stage == model::Stage::Retreats) return ResolveRetreats(game);
  if (game.Stage == model::Stage::Adjustments) return ResolveAdjustments(game);
  ThrowNothingToResolve(game);
}

}  // namespace orb::adjudication::usual
