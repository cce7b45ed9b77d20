#pragma once

#include "adjudication/resolution.h"
#include "model/game_state.h"
#include "orders/chains.h"
#include "orders/order_line.h"

namespace orb::adjudication {

/// A strength and the order it stands behind.
struct Opposition {
  int Strength = 0;
  int Order = 0;
};

/// The moves of one season: who stands where and aims where, and with what force. Nothing moves
/// while they are decided, so the units are listed by place once; CountForces starts each run of
/// the resolution.
class Battlefield {
 public:
  Battlefield(model::GameState& game, Resolution& resolution);

  /// Lists the active moves and supports, and sets every unit's force: 1 and 1 for each active
  /// support linked to one of its orders. No order may become active or inactive until the next.
  void CountForces();

  orders::OrderTable& Orders() { return resolution_.Orders; }
  orders::OrderLine& Order(int k) { return resolution_.Orders[k]; }
  Reason& ReasonOf(int k) { return resolution_.Reasons[k]; }
  int OrderOf(int unit) const { return resolution_.OrdersOfUnits[unit]; }
  int PowerOf(int unit) const { return resolution_.Pieces[unit].Power; }
  bool IsSamePlace(int a, int b) const { return PlaceOf(a) == PlaceOf(b); }
  int Force(int unit) const { return resolution_.Force[unit]; }

  /// The first unit in the place that move m aims at, and the next in the same place; 0: no more.
  int FirstUnitAt(int m) const { return units_.First(Aim(m)); }
  int NextUnit(int unit) const { return units_.Next(unit); }

  /// The last unit, in index order, in the place that move m aims at; 0: none.
  int LastUnitAt(int m) const;

  /// Raises the opposition to the strongest other active move to the place that move m aims at,
  /// failed ones included.
  Opposition RaisedByRivals(int m, Opposition opposition) const;

  /// 1 and 1 for each active support of m's unit that is not given by the defender's own power.
  int AttackStrength(int m, int defender) const;

  /// Marks the unit as dislodged by move m: its order fails, its force is gone, and a support that
  /// it gave into the place the attack comes from is withdrawn.
  void Dislodge(int unit, int m);

  /// Marks the unit as dislodged by move m, nothing more: what the last phase does.
  void MarkDislodged(int unit, int m);

  /// Records which supports stood behind move m (those of `defender`'s power discounted; 0: none)
  /// and behind its opponent.
  void Record(int m, Ruling ruling, int strength, Opposition opposition, int occupant,
              int defender);

 private:
  /// The number of the place that a row of the map belongs to; 0 for row 0.
  int PlaceOf(int row) const { return row == 0 ? 0 : resolution_.Map->Places[row]; }
  int Aim(int order) const { return PlaceOf(resolution_.Orders[order].Target); }
  OrderSet SupportsOf(int unit) const;

  model::GameState& game_;
  Resolution& resolution_;
  orders::Chains<model::ProvinceBound, orders::OrderBound> movers_;  ///< by the place aimed at
  orders::Chains<model::ProvinceBound, model::UnitBound> units_;     ///< by the place stood in
  orders::Chains<model::UnitBound, orders::OrderBound> supports_;    ///< by the supported unit
};

}  // namespace orb::adjudication
