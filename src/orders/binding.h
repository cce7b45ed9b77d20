#pragma once

#include "model/game_state.h"
#include "orders/order_line.h"
#include "orders/pieces.h"
#include "orders/questions.h"

namespace orb::orders {

/// For each unit the row of its order; 0: none.
using OrdersOfUnits = model::Table<std::int16_t, model::UnitBound>;

/// Ties each order to its unit, gives every unit without an order a hold order at the end of the
/// table, and links each support and convoy to the order it refers to. False when the user does
/// not want to continue at a warning. Throws IndexOutOfRange beyond 80 orders.
bool BindOrdersToUnits(const model::Map& map, const Pieces& pieces, OrderTable& orders,
                       OrdersOfUnits& ordersOfUnits, Questions& questions);

/// Rejects moves that the unit cannot make, then supports that the supporter could not give.
/// False when the user does not want to continue at a warning.
bool CheckImpossibleOrders(const model::Map& map, OrderTable& orders, Questions& questions);

/// Whether a unit of the type can get there by one move: over a connection of its type, or by a
/// convoy.
bool IsPossibleMove(const model::Map& map, model::UnitType unitType, int from, int to,
                    bool viaConvoy);

/// Takes one more order into the table, supplied for a unit that has none. Throws
/// IndexOutOfRange when there is no room.
OrderLine& SupplyOrder(const model::Map& map, const Piece& piece, int unit, OrderKind kind,
                       std::string_view verb, OrderTable& orders);

/// The unit that an order is for, wherever such a unit stands.
inline Piece OrderedPiece(const OrderLine& order) {
  return {order.Power, order.UnitType, order.Location};
}

/// The other unit of a support or convoy.
inline Piece OtherPiece(const OrderLine& order) {
  return {order.Power2, order.UnitType2, order.Target};
}

/// Whether the support or convoy describes the unit that the other order is for.
inline bool RefersTo(const OrderLine& order, const OrderLine& other) {
  return order.Target != 0 && OtherPiece(order) == OrderedPiece(other);
}

/// The location into which a support is given.
inline int SupportedPlace(const OrderLine& support) {
  return support.Kind2 == OrderKind::Hold ? support.Target : support.Target2;
}

}  // namespace orb::orders
