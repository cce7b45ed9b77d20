#include "orders/order_outcome.h"

#include "orders/binding.h"

namespace orb::orders {

OrderOutcome OutcomeOf(const OrderLine& order, Outcome outcome) {
  OrderOutcome what;
  what.Power = order.Power;
  what.UnitType = order.UnitType;
  what.Location = order.Location;
  what.Kind = order.Kind;
  if (IsSupport(order) || IsConvoy(order)) {
    what.OtherLocation = order.Target;
    what.Destination = order.Target2;
  } else {
    what.Destination = order.Target;
  }
  what.ViaConvoy = order.ViaConvoy;
  what.Outcome = outcome;
  what.Unordered = order.Result == "unordered" || order.Text.ends_with(UnorderedHold);
  return what;
}

}  // namespace orb::orders
