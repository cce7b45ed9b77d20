#include "adjudication/stages.h"

#include "adjudication/adjustments.h"
#include "adjudication/moves.h"
#include "adjudication/retreats.h"
#include "model/errors.h"
#include "orders/parser.h"

#include <utility>

namespace orb::adjudication {

Resolution StartResolution(ResolvedStage stage, const model::GameState& game,
                           std::vector<std::string> lines) {
  Resolution resolution;
  resolution.Stage = stage;
  orders::SetOrderTexts(std::move(lines), resolution.Orders);
  resolution.UnitsBefore = game.Units;
  return resolution;
}

void EndMovement(model::GameState& game) {
  game.Stage = "adjustments";
  if (game.Season == "Spring") {
    game.Stage = "finished";
  } else {
    model::SetCentreOwnersFromUnits(game);
  }
}

Resolution ResolveStageInPlace(model::GameState& game, model::Messages& messages) {
  if (game.Stage == "moves") return Resolve(game, messages);
  if (game.Stage == "retreats") return ResolveRetreats(game, messages);
  if (game.Stage == "adjustments") return ResolveAdjustments(game, messages);
  throw model::FatalError("There is nothing to resolve in the stage \"" + game.Stage + "\".");
}

Resolution ResolveStage(model::GameState& game, model::Messages& messages) {
  model::GameState next = game;
  Resolution resolution = ResolveStageInPlace(next, messages);
  if (resolution.Completed) game = std::move(next);
  return resolution;
}

}  // namespace orb::adjudication
