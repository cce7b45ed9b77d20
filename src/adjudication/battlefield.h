#pragma once

#include "adjudication/resolution.h"
#include "model/game_state.h"
#include "orders/order_line.h"

#include <array>
#include <cstdint>

namespace orb::adjudication {

/// Lists of indices strung together in ascending order, one list a key; 0 ends a list.
template <int KeyBound, int ItemBound>
class Chains {
 public:
  int First(int key) const { return first_[static_cast<std::size_t>(key)]; }
  int Next(int item) const { return next_[static_cast<std::size_t>(item)]; }

  /// Items must come in descending order.
  void Prepend(int key, int item) {
    auto& first = first_[static_cast<std::size_t>(key)];
    next_[static_cast<std::size_t>(item)] = first;
    first = static_cast<std::int8_t>(item);
  }

 private:
  std::array<std::int8_t, KeyBound + 1> first_{};
  std::array<std::int8_t, ItemBound + 1> next_{};
};

/// A strength and the order it stands behind.
struct Opposition {
  int Strength = 0;
  int Order = 0;
};

/// The moves of one season: who stands and aims where, and with what force. Nothing moves while
/// they are decided, so places are listed once; CountForces starts each run of the resolution.
class Battlefield {
 public:
  Battlefield(model::GameState& game, Resolution& resolution);

  /// Lists the active moves and supports, and sets every unit's force: 1 and 1 for each active
  /// support linked to one of its orders. No order may become active or inactive until the next.
  void CountForces();

  orders::OrderTable& Orders() { return resolution_.Orders; }
  orders::OrderLine& Order(int k) { return resolution_.Orders[k]; }
  Reason& ReasonOf(int k) { return resolution_.Reasons[k]; }
  const model::Unit& UnitOf(const orders::OrderLine& order) { return game_.Units[order.UnitIndex]; }
  const model::Unit& Unit(int u) const { return game_.Units[u]; }
  int OrderOf(int unit) const { return game_.Units[unit].OrderIndex; }
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

  /// Marks the unit as dislodged by move m and does no more.
  void MarkDislodged(int unit, int m);

  /// Records which supports stood behind move m (those of `defender`'s power discounted; 0: none)
  /// and behind its opponent.
  void Record(int m, Ruling ruling, int strength, Opposition opposition, int occupant,
              int defender);

 private:
  static constexpr int PlaceBound = orders::OrderBound + model::UnitBound;

  int Aim(int order) const { return aims_[static_cast<std::size_t>(order)]; }
  int PlaceNumber(std::uint32_t code);
  OrderSet SupportsOf(int unit) const;

  model::GameState& game_;
  Resolution& resolution_;
  std::array<std::uint32_t, PlaceBound + 1> placeCodes_{};
  int placeCount_ = 0;
  std::array<std::int8_t, orders::OrderBound + 1> aims_{};
  Chains<PlaceBound, orders::OrderBound> movers_;
  Chains<PlaceBound, model::UnitBound> units_;
  Chains<model::UnitBound, orders::OrderBound> supports_;
};

}  // namespace orb::adjudication
