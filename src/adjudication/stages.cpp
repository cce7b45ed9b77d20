#include "adjudication/stages.h"

#include "adjudication/adjustments.h"
#include "adjudication/moves.h"
#include "adjudication/retreats.h"
#include "model/errors.h"
#include "orders/parser.h"

#include <utility>

namespace orb::adjudication {

Resolution StartResolution(ResolvedStage stage, const model::GameState& game,
                           const std::vector<std::string>& lines) {
  Resolution resolution;
  resolution.Stage = stage;
  orders::SetOrderTexts(lines, resolution.Orders);
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

Resolution ResolveStage(model::GameState& game, model::Messages& messages) {
  model::GameState next = game;
  Resolution resolution;
  if (game.Stage == "moves") {
    resolution = Resolve(next, messages);
  } else if (game.Stage == "retreats") {
    resolution = ResolveRetreats(next, messages);
  } else if (game.Stage == "adjustments") {
    resolution = ResolveAdjustments(next, messages);
  } else {
    throw model::FatalError("There is nothing to resolve in the stage \"" + game.Stage + "\".");
  }
  if (resolution.Completed) game = std::move(next);
  return resolution;
}

}  // namespace orb::adjudication
