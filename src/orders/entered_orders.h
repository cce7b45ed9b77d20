#pragma once

#include "model/game_state.h"
#include "orders/order_outcome.h"

#include <vector>

namespace orb::orders {

/// The orders in the list of the game's stage, in its order, none resolved yet. Lines that break
/// the text form are left out; whether units and orders fit together is not asked, but a move that
/// a convoy order describes is marked as carried. Empty in a stage without orders.
std::vector<OrderOutcome> EnteredOrders(const model::GameState& game);

}  // namespace orb::orders
