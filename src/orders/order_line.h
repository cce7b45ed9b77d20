#pragma once

#include "model/table.h"
#include "orders/order_result.h"
#include "orders/order_words.h"

#include <cstdint>
#include <string>

namespace orb::orders {

constexpr int OrderBound = 80;

/// One order of any stage: its text, the parts that were read from it, its links and its fate.
struct OrderLine : OrderParts {
  std::string Text;                           ///< the list line without leading and trailing blanks
  OrderResult Result = OrderResult::None;     ///< what is reported
  OrderResult Rejection = OrderResult::None;  ///< the first check that it did not pass
  bool Supplied = false;                      ///< nobody wrote it: its unit had no order
  bool ViaConvoy = false;                     ///< the move is carried by a convoy
  bool Active = false;                        ///< the order takes part in the resolution
  bool Failed = false;
  bool Pending = false;          ///< still to be decided
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
