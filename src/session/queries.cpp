#include "session/queries.h"

#include "model/errors.h"
#include "orders/entered_orders.h"
#include "orders/order_list.h"

namespace orb::session {

bool TakesOrders(const model::GameState& game) {
  return HasOrders(game.Stage);
}

bool HasOrders(const model::GameState& game) {
  return !orders::StageList(game).empty();
}

adjudication::ListCheck CheckOrders(const Situation& situation) {
  const model::GameState& game = situation.Game;
  if (!TakesOrders(game)) {
    throw model::FatalError("There are no orders to check in the stage \"" +
                            std::string(StageText(game)) + "\".");
  }
  return adjudication::CheckList(game);
}

void ExpectOrdersToDraw(const Situation& situation) {
  if (situation.Game.Stage == model::Stage::Finished) {
    throw model::FatalError("There are no orders to draw in the stage \"finished\".");
  }
}

std::vector<orders::OrderOutcome> EnteredOrders(const Situation& situation) {
  ExpectOrdersToDraw(situation);
  return orders::EnteredOrders(situation.Game);
}

std::vector<orders::OrderOutcome> SeasonOrders(const Situation& situation) {
  std::vector<orders::OrderOutcome> all = situation.Outcomes;
  const std::vector<orders::OrderOutcome> entered = orders::EnteredOrders(situation.Game);
  all.insert(all.end(), entered.begin(), entered.end());
  return all;
}

}  // namespace orb::session
