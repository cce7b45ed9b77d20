#pragma once

#include "model/game_state.h"
#include "orders/binding.h"
#include "orders/order_line.h"
#include "orders/pieces.h"

#include <bitset>
#include <cstdint>
#include <memory>
#include <vector>

namespace orb::adjudication {

/// Which step decided the fate of an order.
enum class Ruling : std::uint8_t {
  None,             ///< nothing opposed it, or a check rejected it
  HeadToHead,       ///< decided against a unit moving the opposite way
  HeadToHeadOwn,    ///< the unit moving the opposite way is of the same power
  Occupant,         ///< decided against a unit that stays
  OccupantOwn,      ///< the unit that stays is of the same power
  EmptyPlace,       ///< decided for a place where no unit stands
  LeavingUnit,      ///< lost while the unit in the place had not left it yet
  LeftPlace,        ///< decided for a place that its unit has left
  BouncedUnit,      ///< decided against a unit whose own move failed
  Ring,             ///< undecided to the last: all such moves succeed together
  BackToAttacker,   ///< a retreat to where the attack came from
  PlaceTaken,       ///< a retreat to where a unit stands
  RetreatsCollide,  ///< another retreat aims at the same place
  NoPath,           ///< by the usual rules: no whole chain of fleets carried it
  Paradox,          ///< by the usual rules: its convoy would have depended on its own landing
};

using OrderSet = std::bitset<orders::OrderBound + 1>;

/// What decided an order: enough to say it in a sentence later. Indices are rows of the order
/// table, 0 for none. Recording changes no result.
struct Reason {
  adjudication::Ruling Ruling = Ruling::None;
  std::int16_t Strength = 0;      ///< of the order's own side
  std::int16_t Against = 0;       ///< the strength it had to exceed
  std::int16_t Occupant = 0;      ///< order of the unit in the place aimed at
  std::int16_t Opponent = 0;      ///< order whose strength is Against: the occupant's or a rival's
  std::int16_t Cutter = 0;        ///< the move that cut this support
  std::int16_t LostFleet = 0;     ///< the dislodged fleet's order that broke this convoyed move
  std::int16_t Dislodger = 0;     ///< the move that dislodged this order's unit
  std::int16_t Blocker = 0;       ///< unit (not order) or clashing order that stood in the way
  bool SupportWithdrawn = false;  ///< its unit was dislodged from the place it supported into
  OrderSet Behind;                ///< supports counted in Strength
  OrderSet Discounted;            ///< supports not counted: given by the power that is attacked
  OrderSet BehindOpponent;        ///< supports counted in Against
};

/// The part of a report line that an order wrote.
struct ReportEntry {
  int Line = 0;
  int Order = 0;
};

/// All that one resolution worked out, kept for whoever shows or explains it.
struct Resolution {
  model::Stage Stage = model::Stage::Moves;  ///< the one that was resolved
  bool Completed = false;  ///< false: abandoned at a question or an error, the situation unchanged
  int StoppedAt = 0;       ///< the order at whose warning the user stopped; 0: at none
  std::shared_ptr<const model::Map> Map;  ///< what the orders' places are rows of
  orders::OrderTable Orders;
  model::Table<Reason, orders::OrderBound> Reasons;  ///< in the rows of the orders
  model::Table<std::int16_t, model::UnitBound> Force;
  model::Table<model::Unit, model::UnitBound> UnitsBefore;  ///< what orders' unit indices refer to
  orders::Pieces Pieces;                                    ///< the same in rows
  orders::OrdersOfUnits OrdersOfUnits;                      ///< the order that stands for each unit
  std::vector<ReportEntry> Entries;
};

}  // namespace orb::adjudication
