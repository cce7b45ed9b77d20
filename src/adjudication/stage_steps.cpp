#include "adjudication/stage_steps.h"

#include "model/lookups.h"
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

}  // namespace orb::adjudication
