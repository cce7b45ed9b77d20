#include "adjudication/stages.h"

#include "adjudication/adjustments.h"
#include "adjudication/moves.h"
#include "adjudication/retreats.h"
#include "model/errors.h"
#include "orders/parser.h"

#include <utility>

namespace orb::adjudication {

Resolution StartResolution(model::Stage stage, const model::GameState& game,
                           std::vector<std::string> lines) {
  Resolution resolution;
  resolution.Stage = stage;
  orders::SetOrderTexts(std::move(lines), resolution.Orders);
  resolution.Map = game.Map;
  resolution.UnitsBefore = game.Units;
  resolution.Pieces = orders::PiecesOf(game);
  return resolution;
}

void EndMovement(model::GameState& game) {
  game.Stage = model::Stage::Adjustments;
  if (game.Season == "Spring") {
    game.Stage = model::Stage::Finished;
  } else {
    model::SetCentreOwnersFromUnits(game);
  }
}

Resolution ResolveStageInPlace(model::GameState& game, model::Messages& messages) {
  if (game.Stage == model::Stage::Moves) return ResolveMoves(game, messages);
  if (game.Stage == model::Stage::Retreats) return ResolveRetreats(game, messages);
  if (game.Stage == model::Stage::Adjustments) return ResolveAdjustments(game, messages);
  throw model::FatalError("There is nothing to resolve in the stage \"" +
                          std::string(StageText(game)) + "\".");
}

Resolution ResolveStage(model::GameState& game, model::Messages& messages) {
  // Works on a copy: a No at any question, or an error, leaves the situation as it was.
  model::GameState next = game;
  Resolution resolution = ResolveStageInPlace(next, messages);
  if (resolution.Completed) game = std::move(next);
  return resolution;
}

}  // namespace orb::adjudication
