#pragma once

#include "model/game_state.h"
#include "model/messages.h"
#include "orders/order_line.h"

#include <string_view>

namespace orb::orders {

/// How the text of the hold order ends that a unit without an order is given.
constexpr std::string_view UnorderedHold = " unordered; hold";

/// Ties each order to its unit, gives every unit without an order a hold order at the end of the
/// table, and links each support and convoy to the order it refers to. False when the user does
/// not want to continue at a warning. Throws IndexOutOfRange beyond 80 orders.
bool BindOrdersToUnits(model::GameState& game, OrderTable& orders, model::Messages& messages);

/// Rejects moves that the unit cannot make, then supports that the supporter could not give.
/// False when the user does not want to continue at a warning.
bool CheckImpossibleOrders(const model::GameState& game, OrderTable& orders,
                           model::Messages& messages);

/// Whether a unit of the type can get there by one move: over a connection of its type, or by a
/// convoy.
bool IsPossibleMove(const model::Map& map, std::string_view unitType, std::string_view from,
                    std::string_view to, bool viaConvoy);

/// Whether the support or convoy describes the unit that the other order is for.
bool RefersTo(const OrderLine& order, const OrderLine& other);

/// The location into which a support is given.
inline const std::string& SupportedPlace(const OrderLine& support) {
  return support.Kind2 == "HOLD" ? support.Target : support.Target2;
}

}  // namespace orb::orders
