#include "adjudication/battlefield.h"

namespace orb::adjudication {

using orders::IsMove;
using orders::IsSupport;
using orders::OrderLine;

Battlefield::Battlefield(model::GameState& game, Resolution& resolution)
    : game_(game), resolution_(resolution) {
  // From the last to the first, since chains grow at their front and must ascend.
  for (int u = resolution.Pieces.Count(); u >= 1; --u)
    units_.Prepend(PlaceOf(resolution.Pieces[u].Location), u);
}

void Battlefield::CountForces() {
  resolution_.Force.SetCount(game_.Units.Count());
  for (std::int16_t& force : resolution_.Force)
    force = 1;
  movers_ = {};
  supports_ = {};
  for (int k = Orders().Count(); k >= 1; --k) {
    const OrderLine& order = Order(k);
    if (!order.Active) continue;
    if (IsMove(order)) movers_.Prepend(Aim(k), k);
    if (!IsSupport(order) || order.LinkedOrder == 0) continue;
    // Whether the support is for a hold or for a move need not be asked: one that does not fit its
    // unit's order was rejected before.
    const int unit = Order(order.LinkedOrder).UnitIndex;
    if (unit == 0) continue;
    ++resolution_.Force[unit];
    supports_.Prepend(unit, k);
  }
}

int Battlefield::LastUnitAt(int m) const {
  int last = 0;
  for (int u = FirstUnitAt(m); u != 0; u = NextUnit(u))
    last = u;
  return last;
}

Opposition Battlefield::RaisedByRivals(int m, Opposition opposition) const {
  for (int k = movers_.First(Aim(m)); k != 0; k = movers_.Next(k)) {
    if (k == m) continue;
    // With its full force: only the attack on a defender looks at who gives the supports.
    const int force = Force(resolution_.Orders[k].UnitIndex);
    if (force > opposition.Strength) opposition = {force, k};
  }
  return opposition;
}

int Battlefield::AttackStrength(int m, int defender) const {
  int strength = 1;
  const int attacker = resolution_.Orders[m].UnitIndex;
  for (int k = supports_.First(attacker); k != 0; k = supports_.Next(k)) {
    const int supporter = resolution_.Orders[k].UnitIndex;
    // No power helps to dislodge a unit of its own.
    if (PowerOf(supporter) != PowerOf(defender)) ++strength;
  }
  return strength;
}

void Battlefield::MarkDislodged(int unit, int m) {
  game_.Units[unit].Status = model::Dislodged;
  game_.Units[unit].DislodgedFrom = model::LocationName(*resolution_.Map, Order(m).Location);
  ReasonOf(OrderOf(unit)).Dislodger = static_cast<std::int16_t>(m);
}

void Battlefield::Dislodge(int unit, int m) {
  MarkDislodged(unit, m);
  const int k = OrderOf(unit);
  Order(k).Failed = true;
  resolution_.Force[unit] = 0;
  // An attack from the place supported into did not cut the support; dislodging its unit takes it
  // away after all. One that another attack had cut before is taken off all the same.
  if (!IsSupport(Order(k)) || !IsSamePlace(Order(k).Target2, Order(m).Location)) return;
  if (Order(k).LinkedOrder == 0) return;
  const int supported = Order(Order(k).LinkedOrder).UnitIndex;
  if (supported == 0) return;
  --resolution_.Force[supported];
  ReasonOf(k).SupportWithdrawn = true;
}

OrderSet Battlefield::SupportsOf(int unit) const {
  OrderSet supports;
  for (int k = supports_.First(unit); k != 0; k = supports_.Next(k)) {
    if (!resolution_.Reasons[k].SupportWithdrawn) supports.set(static_cast<std::size_t>(k));
  }
  return supports;
}

void Battlefield::Record(int m, Ruling ruling, int strength, Opposition opposition, int occupant,
                         int defender) {
  Reason& reason = ReasonOf(m);
  reason.Ruling = ruling;
  reason.Strength = static_cast<std::int16_t>(strength);
  reason.Against = static_cast<std::int16_t>(opposition.Strength);
  reason.Occupant = static_cast<std::int16_t>(occupant == 0 ? 0 : OrderOf(occupant));
  reason.Opponent = static_cast<std::int16_t>(opposition.Order);
  const int attacker = Order(m).UnitIndex;
  if (defender == 0) {
    reason.Behind = SupportsOf(attacker);
  } else {
    for (int k = supports_.First(attacker); k != 0; k = supports_.Next(k)) {
      const bool counts = PowerOf(Order(k).UnitIndex) != PowerOf(defender);
      (counts ? reason.Behind : reason.Discounted).set(static_cast<std::size_t>(k));
    }
  }
  // A strength of 1 is that of a unit alone.
  if (opposition.Strength > 1) {
    reason.BehindOpponent = SupportsOf(Order(opposition.Order).UnitIndex);
  }
}

}  // namespace orb::adjudication
