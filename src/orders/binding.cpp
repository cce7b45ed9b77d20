#include "orders/binding.h"

#include "model/lookups.h"
#include "model/place.h"

#include <array>
#include <cstdint>

namespace orb::orders {
namespace {

using model::GameState;
using model::Messages;
using model::Unit;

/// The place codes of a table's locations. Every order is held against every unit, and comparing
/// these numbers first rules out nearly all of them at no cost.
template <class Row, int Bound>
std::array<std::uint32_t, Bound + 1> PlaceCodes(const model::Table<Row, Bound>& table) {
  std::array<std::uint32_t, Bound + 1> codes{};
  for (int i = 1; i <= table.Count(); ++i) {
    codes[static_cast<std::size_t>(i)] = model::PlaceCode(table[i].Location);
  }
  return codes;
}

/// Whole texts are compared, so coasts must match.
bool IsFor(const OrderLine& order, const Unit& unit) {
  return order.Location == unit.Location && order.Power == unit.Power &&
         order.UnitType == unit.UnitType;
}

bool RejectWithWarning(OrderLine& order, const std::string& result, Messages& messages) {
  Reject(order, result);
  return messages.Warn(model::WarningText(order.Text, result + "."));
}

bool FindUnitsOfOrders(const GameState& game, OrderTable& orders, Messages& messages) {
  const auto places = PlaceCodes(game.Units);
  for (OrderLine& order : orders) {
    if (!order.Active) continue;
    order.UnitIndex = 0;
    const std::uint32_t place = model::PlaceCode(order.Location);
    for (int u = 1; u <= game.Units.Count(); ++u) {
      if (places[static_cast<std::size_t>(u)] != place) continue;
      if (IsFor(order, game.Units[u])) order.UnitIndex = static_cast<std::int16_t>(u);
    }
    if (order.UnitIndex == 0 && !RejectWithWarning(order, "no such unit", messages)) return false;
  }
  return true;
}

void AppendHold(const std::string& unitText, Unit& unit, int unitIndex, OrderTable& orders) {
  OrderLine& order = orders.Append();
  order.Text.assign(unitText).append(UnorderedHold);
  order.Power = unit.Power;
  order.UnitType = unit.UnitType;
  order.Location = unit.Location;
  order.Kind = "HOLD";
  order.Active = true;
  order.UnitIndex = static_cast<std::int16_t>(unitIndex);
  unit.OrderIndex = static_cast<std::int16_t>(orders.Count());
}

bool FindOrdersOfUnits(GameState& game, OrderTable& orders, Messages& messages) {
  model::Answer answer = model::Answer::Yes;
  auto places = PlaceCodes(orders);
  for (int u = 1; u <= game.Units.Count(); ++u) {
    Unit& unit = game.Units[u];
    unit.OrderIndex = 0;
    const std::uint32_t place = model::PlaceCode(unit.Location);
    for (int k = 1; k <= orders.Count(); ++k) {
      if (places[static_cast<std::size_t>(k)] != place) continue;
      if (IsFor(orders[k], unit)) unit.OrderIndex = static_cast<std::int16_t>(k);
    }
    if (unit.OrderIndex != 0) continue;
    const std::string unitText = UnitText(unit);
    AppendHold(unitText, unit, u, orders);
    places[static_cast<std::size_t>(orders.Count())] = place;
    if (answer == model::Answer::YesToAll) continue;
    answer = messages.Ask(model::WarningText(unitText + " unordered."));
    if (answer == model::Answer::No) return false;
  }
  return true;
}

void LinkTo(OrderLine& order, OrderLine& other, int otherIndex) {
  if (order.Target2 == other.Target && order.Kind2 == other.Kind) {
    order.LinkedOrder = static_cast<std::int16_t>(otherIndex);
    if (IsConvoy(order)) other.ViaConvoy = true;
  } else if (!IsMove(other) && IsSupport(order) && order.Kind2 == "HOLD") {
    order.LinkedOrder = static_cast<std::int16_t>(otherIndex);
  }
}

void LinkOrders(OrderTable& orders) {
  for (OrderLine& order : orders) {
    order.LinkedOrder = 0;
    if (!order.Active || !(IsSupport(order) || IsConvoy(order))) continue;
    for (int t = 1; t <= orders.Count(); ++t) {
      if (RefersTo(order, orders[t])) LinkTo(order, orders[t], t);
    }
    if (order.LinkedOrder == 0) Reject(order, "not used");
  }
}

}  // namespace

bool IsPossibleMove(const model::Map& map, std::string_view unitType, std::string_view from,
                    std::string_view to, bool viaConvoy) {
  return CanStandIn(map, unitType, to) && (viaConvoy || IsAdjacent(map, unitType, from, to));
}

bool RefersTo(const OrderLine& order, const OrderLine& other) {
  return model::SamePlace(order.Target, other.Location) && order.Target == other.Location &&
         order.Power2 == other.Power && order.UnitType2 == other.UnitType;
}

bool BindOrdersToUnits(GameState& game, OrderTable& orders, Messages& messages) {
  if (!FindUnitsOfOrders(game, orders, messages)) return false;
  if (!FindOrdersOfUnits(game, orders, messages)) return false;
  for (OrderLine& order : orders)
    order.ViaConvoy = false;
  LinkOrders(orders);
  return true;
}

bool CheckImpossibleOrders(const GameState& game, OrderTable& orders, Messages& messages) {
  const model::Map& map = *game.Map;
  for (OrderLine& order : orders) {
    if (!order.Active || !IsMove(order)) continue;
    const Unit& unit = game.Units[order.UnitIndex];
    if (IsPossibleMove(map, unit.UnitType, unit.Location, order.Target, order.ViaConvoy)) continue;
    if (!RejectWithWarning(order, "impossible move", messages)) return false;
  }
  for (OrderLine& order : orders) {
    if (!order.Active || !IsSupport(order)) continue;
    if (CanSupportInto(map, game.Units[order.UnitIndex], SupportedPlace(order))) continue;
    if (!RejectWithWarning(order, "impossible support", messages)) return false;
  }
  return true;
}

}  // namespace orb::orders
