#include "orders/binding.h"

#include "model/lookups.h"
#include "orders/chains.h"

#include <string>

namespace orb::orders {
namespace {

using model::Map;

/// Which orders are for a unit in each row of the map. Every order is held against the units, and
/// every support against the orders; only those of one location can fit.
using OrdersByLocation = Chains<model::ProvinceBound, OrderBound>;

OrdersByLocation ByLocation(const OrderTable& orders) {
  OrdersByLocation chains;
  for (int k = orders.Count(); k >= 1; --k)
    chains.Prepend(orders[k].Location, k);
  return chains;
}

bool RejectWithWarning(OrderTable& orders, int k, OrderResult result, Questions& questions) {
  Reject(orders[k], result);
  return questions.GoOn(
      k, model::WarningText(orders[k].Text, std::string(ResultWord(result)).append(".")));
}

/// Finds the unit of each order; rejects the orders for units that are not there.
bool FindUnitsOfOrders(const Pieces& pieces, OrderTable& orders, Questions& questions) {
  Chains<model::ProvinceBound, model::UnitBound> units;
  for (int u = pieces.Count(); u >= 1; --u)
    units.Prepend(pieces[u].Location, u);
  for (int k = 1; k <= orders.Count(); ++k) {
    OrderLine& order = orders[k];
    if (!order.Active) continue;
    order.UnitIndex = 0;
    // Of several such units the last one is meant.
    for (int u = units.First(order.Location); u != 0; u = units.Next(u)) {
      if (pieces[u] == OrderedPiece(order)) order.UnitIndex = static_cast<std::int16_t>(u);
    }
    if (order.UnitIndex != 0) continue;
    if (!RejectWithWarning(orders, k, OrderResult::NoSuchUnit, questions)) return false;
  }
  return true;
}

/// The last order for a unit, a rejected one or one that was supplied for its like included; 0:
/// none.
int OrderFor(const Piece& piece, const OrderTable& orders, const OrdersByLocation& written,
             int writtenCount) {
  for (int k = orders.Count(); k > writtenCount; --k) {
    if (OrderedPiece(orders[k]) == piece) return k;
  }
  int last = 0;
  for (int k = written.First(piece.Location); k != 0; k = written.Next(k)) {
    if (OrderedPiece(orders[k]) == piece) last = k;
  }
  return last;
}

/// Finds the order of each unit, and supplies a hold for those without one. "Yes to all" holds for
/// the rest of this resolution only.
bool FindOrdersOfUnits(const Map& map, const Pieces& pieces, OrderTable& orders,
                       OrdersOfUnits& ordersOfUnits, Questions& questions) {
  const OrdersByLocation written = ByLocation(orders);
  const int writtenCount = orders.Count();
  model::Answer answer = model::Answer::Yes;
  ordersOfUnits.SetCount(pieces.Count());
  for (int u = 1; u <= pieces.Count(); ++u) {
    ordersOfUnits[u] =
        static_cast<std::int16_t>(OrderFor(pieces[u], orders, written, writtenCount));
    if (ordersOfUnits[u] != 0) continue;
    const OrderLine& hold =
        SupplyOrder(map, pieces[u], u, OrderKind::Hold, " unordered; hold", orders);
    ordersOfUnits[u] = static_cast<std::int16_t>(orders.Count());
    if (answer == model::Answer::YesToAll) continue;
    answer = questions.Messages().Ask(model::WarningText(UnitName(map, hold) + " unordered."));
    if (answer == model::Answer::No) return false;
  }
  return true;
}

/// Links a support or convoy to an order of the unit that it describes, if it describes what that
/// order does; a support to hold fits every unit that does not move.
void LinkTo(OrderLine& order, OrderLine& other, int otherIndex) {
  if (order.Target2 == other.Target && order.Kind2 == other.Kind) {
    order.LinkedOrder = static_cast<std::int16_t>(otherIndex);
    // One fleet is enough to make it a convoyed move: whether the fleets form a chain is not
    // checked.
    if (IsConvoy(order)) other.ViaConvoy = true;
  } else if (!IsMove(other) && IsSupport(order) && order.Kind2 == OrderKind::Hold) {
    order.LinkedOrder = static_cast<std::int16_t>(otherIndex);
  }
}

void LinkOrders(OrderTable& orders) {
  const OrdersByLocation all = ByLocation(orders);
  for (OrderLine& order : orders) {
    order.LinkedOrder = 0;
    if (!order.Active || !(IsSupport(order) || IsConvoy(order))) continue;
    for (int t = all.First(order.Target); t != 0; t = all.Next(t)) {
      if (RefersTo(order, orders[t])) LinkTo(order, orders[t], t);
    }
    // The one fault that is not asked about: the report shows it.
    if (order.LinkedOrder == 0) Reject(order, OrderResult::NotUsed);
  }
}

}  // namespace

OrderLine& SupplyOrder(const Map& map, const Piece& piece, int unit, OrderKind kind,
                       std::string_view verb, OrderTable& orders) {
  OrderLine& order = AppendOrder(orders);
  order.Power = piece.Power;
  order.UnitType = piece.UnitType;
  order.Location = piece.Location;
  order.Kind = kind;
  order.Supplied = true;
  order.Active = true;
  order.UnitIndex = static_cast<std::int16_t>(unit);
  order.Text = UnitName(map, order).append(verb);
  return order;
}

bool IsPossibleMove(const Map& map, model::UnitType unitType, int from, int to, bool viaConvoy) {
  return model::CanStandIn(map, unitType, to) &&
         (viaConvoy || model::IsAdjacent(map, unitType, from, to));
}

bool BindOrdersToUnits(const Map& map, const Pieces& pieces, OrderTable& orders,
                       OrdersOfUnits& ordersOfUnits, Questions& questions) {
  if (!FindUnitsOfOrders(pieces, orders, questions)) return false;
  if (!FindOrdersOfUnits(map, pieces, orders, ordersOfUnits, questions)) return false;
  LinkOrders(orders);
  return true;
}

bool CheckImpossibleOrders(const Map& map, OrderTable& orders, Questions& questions) {
  for (int k = 1; k <= orders.Count(); ++k) {
    const OrderLine& order = orders[k];
    if (!order.Active || !IsMove(order)) continue;
    if (IsPossibleMove(map, order.UnitType, order.Location, order.Target, order.ViaConvoy))
      continue;
    if (!RejectWithWarning(orders, k, OrderResult::ImpossibleMove, questions)) return false;
  }
  for (int k = 1; k <= orders.Count(); ++k) {
    const OrderLine& order = orders[k];
    if (!order.Active || !IsSupport(order)) continue;
    const int target = SupportedPlace(order);
    if (model::CanSupportInto(map, order.UnitType, order.Location, target)) continue;
    if (!RejectWithWarning(orders, k, OrderResult::ImpossibleSupport, questions)) return false;
  }
  return true;
}

}  // namespace orb::orders
