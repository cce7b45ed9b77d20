#include "orders/entered_orders.h"

#include "orders/order_list.h"
#include "orders/parser.h"

#include <algorithm>

namespace orb::orders {
namespace {

/// Marks the moves of armies that a convoy order describes.
void MarkConvoyed(std::vector<OrderOutcome>& read) {
  for (OrderOutcome& move : read) {
    move.ViaConvoy = move.Kind == OrderKind::Move && move.UnitType == "A" &&
                     std::any_of(read.begin(), read.end(), [&](const OrderOutcome& order) {
                       return order.Kind == OrderKind::Convoy &&
                              order.OtherLocation == move.Location &&
                              order.Destination == move.Destination;
                     });
  }
}

}  // namespace

std::vector<OrderOutcome> EnteredOrders(const model::GameState& game) {
  std::vector<OrderOutcome> entered;
  if (!HasOrders(game.Stage)) return entered;
  const model::Map& map = *game.Map;
  for (const std::string& line : StageList(game)) {
    const OrderLine order = ParseLine(map, game.Stage, line);
    if (order.Fault == SyntaxFault::None) {
      entered.push_back(OutcomeOf(map, order, Outcome::Entered));
    }
  }
  MarkConvoyed(entered);
  return entered;
}

}  // namespace orb::orders
