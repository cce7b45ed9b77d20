#pragma once

#include "model/table.h"
#include "model/unit_type.h"
#include "orders/order_result.h"
#include "orders/order_words.h"

#include <cstdint>
#include <string>

namespace orb::orders {

constexpr int OrderBound = 80;

/// One order of any stage: its text, what was read from it, its links and its fate. Powers are rows
/// 1..7 and places rows of the map; 0 stands for what names none or is not written.
struct OrderLine {
  std::string Text;  ///< the list line without leading and trailing blanks
  std::int8_t Power = 0;
  std::int8_t Power2 = 0;  ///< of the supported or convoyed unit
  model::UnitType UnitType = model::UnitType::None;
  model::UnitType UnitType2 = model::UnitType::None;
  OrderKind Kind = OrderKind::None;
  OrderKind Kind2 = OrderKind::None;          ///< what the other unit does: Move or Hold
  SyntaxFault Fault = SyntaxFault::None;      ///< the first rule of the text form that it breaks
  OrderResult Result = OrderResult::None;     ///< what is reported
  OrderResult Rejection = OrderResult::None;  ///< the first check that it did not pass
  bool Supplied = false;                      ///< nobody wrote it: its unit had no order
  bool ViaConvoy = false;                     ///< the move is carried by a convoy
  bool Active = false;                        ///< the order takes part in the resolution
  bool Failed = false;
  bool Pending = false;          ///< still to be decided
  std::int16_t Location = 0;     ///< of the ordered unit
  std::int16_t Target = 0;       ///< destination; in a support or convoy the other unit's place
  std::int16_t Target2 = 0;      ///< destination of the supported or convoyed move
  std::int16_t UnitIndex = 0;    ///< the unit the order belongs to, 0: none
  std::int16_t LinkedOrder = 0;  ///< order of the supported or convoyed unit, 0: none
};

using OrderTable = model::Table<OrderLine, OrderBound>;

inline bool IsMove(const OrderLine& order) {
  return order.Kind == OrderKind::Move;
}
inline bool IsSupport(const OrderLine& order) {
  return order.Kind == OrderKind::Support;
}
inline bool IsConvoy(const OrderLine& order) {
  return order.Kind == OrderKind::Convoy;
}

/// "ENG A(Lon)": the ordered unit as order lines begin. What could not be read is left out.
std::string UnitName(const model::Map& map, const OrderLine& order);

/// "too many orders: ...": why a list of orders cannot be resolved.
std::string TooManyOrders();

/// Takes one more order into the table. Throws IndexOutOfRange, with a sentence that says so, where
/// there is no room.
OrderLine& AppendOrder(OrderTable& orders);

/// Marks an order as rejected or lost with its result: it takes no further part.
void Reject(OrderLine& order, OrderResult result);

}  // namespace orb::orders
