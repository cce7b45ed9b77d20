#include "orders/order_outcome.h"

#include "model/country.h"

namespace orb::orders {

OrderOutcome OutcomeOf(const model::Map& map, const OrderLine& order, Outcome outcome) {
  const auto name = [&map](int row) -> const std::string& { return model::LocationName(map, row); };
  OrderOutcome what;
  what.Power = std::string(model::PowerName(order.Power));
  what.UnitType = std::string(model::UnitTypeName(order.UnitType));
  what.Location = name(order.Location);
  what.Kind = order.Kind;
  if (IsSupport(order) || IsConvoy(order)) {
    what.OtherLocation = name(order.Target);
    what.Destination = name(order.Target2);
  } else {
    what.Destination = name(order.Target);
  }
  // A support of a move to nowhere must not be taken for one to hold.
  const bool isUnreadable =
      IsSupport(order) && order.Kind2 == OrderKind::Move && order.Target2 == 0;
  if (isUnreadable) what.Kind = OrderKind::None;
  what.ViaConvoy = order.ViaConvoy;
  what.Outcome = outcome;
  what.Unordered = order.Supplied;
  return what;
}

}  // namespace orb::orders
