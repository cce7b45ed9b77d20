#pragma once

#include "model/table.h"

#include <cstdint>
#include <string>
#include <string_view>

namespace orb::orders {

constexpr int OrderBound = 80;

/// One order of any stage: its text, the fields parsed from it, its links and its fate.
struct OrderLine {
  std::string Text;      ///< the list line without leading and trailing blanks
  std::string Power;     ///< abbreviation of the ordering power
  std::string UnitType;  ///< "A" or "F"
  std::string Location;  ///< of the ordered unit
  std::string Kind;      ///< "-", "HOLD", "S", "C"; "RETREAT", "DISBAND", "BUILD" later in the year
  std::string Power2;    ///< power of the supported or convoyed unit
  std::string UnitType2;
  std::string Target;            ///< destination; for "S" and "C" the location of the other unit
  std::string Kind2;             ///< what the other unit does: "-" or "HOLD"
  std::string Target2;           ///< destination of the supported or convoyed move
  std::int16_t UnitIndex = 0;    ///< the unit the order belongs to, 0: none
  std::int16_t LinkedOrder = 0;  ///< order of the supported or convoyed unit, 0: none
  bool ViaConvoy = false;        ///< the move is carried by a convoy
  bool Active = false;           ///< the order takes part in the resolution
  bool Failed = false;
  bool Pending = false;  ///< still to be decided
  std::string Result;    ///< the result word
};

using OrderTable = model::Table<OrderLine, OrderBound>;

inline bool IsMove(const OrderLine& order) {
  return order.Kind == "-";
}
inline bool IsSupport(const OrderLine& order) {
  return order.Kind == "S";
}
inline bool IsConvoy(const OrderLine& order) {
  return order.Kind == "C";
}

/// Marks an order as rejected or lost with its result word: it takes no further part.
void Reject(OrderLine& order, std::string_view result);

}  // namespace orb::orders
