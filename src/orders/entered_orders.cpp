#include "orders/entered_orders.h"

#include "orders/later_stages.h"
#include "orders/parser.h"
#include "text/strings.h"

#include <algorithm>
#include <string>

namespace orb::orders {
namespace {

using Parse = void(OrderLine& order, std::string& work);
using FindFault = SyntaxFault(const model::Map& map, const OrderLine& order);

std::vector<OrderOutcome> Read(const std::vector<std::string>& list, const model::Map& map,
                               Parse& parse, FindFault& findFault) {
  std::vector<OrderOutcome> read;
  std::string work;
  for (const std::string& line : list) {
    OrderLine order;
    order.Text = text::Trim(line);
    parse(order, work);
    if (findFault(map, order) == SyntaxFault::None) {
      read.push_back(OutcomeOf(order, Outcome::Entered));
    }
  }
  return read;
}

void MarkConvoyed(std::vector<OrderOutcome>& read) {
  for (OrderOutcome& move : read) {
    move.ViaConvoy = move.Kind == "-" && move.UnitType == "A" &&
                     std::any_of(read.begin(), read.end(), [&](const OrderOutcome& order) {
                       return order.Kind == "C" && order.OtherLocation == move.Location &&
                              order.Destination == move.Destination;
                     });
  }
}

}  // namespace

std::vector<OrderOutcome> EnteredOrders(const model::GameState& game) {
  const model::Map& map = *game.Map;
  if (game.Stage == "retreats") {
    return Read(game.RetreatsList, map, ParseRetreat, FindRetreatFault);
  }
  if (game.Stage == "adjustments") {
    return Read(game.AdjustmentsList, map, ParseAdjustment, FindAdjustmentFault);
  }
  if (game.Stage != "moves") return {};
  std::vector<OrderOutcome> read = Read(game.OrdersList, map, ParseOrder, FindSyntaxFault);
  MarkConvoyed(read);
  return read;
}

}  // namespace orb::orders
