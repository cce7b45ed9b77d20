#pragma once

#include "model/map.h"
#include "orders/order_outcome.h"

#include <span>
#include <string>
#include <vector>

namespace orb::history {

/// Whether a support or convoy is for this move.
bool IsForMove(const orders::OrderOutcome& order, const orders::OrderOutcome& move);

/// The locations of the fleets that are to carry the move, whatever the order of the orders: from
/// one fleet to the one nearest to it. The move's places are on the map; empty for a move that is
/// not carried.
std::vector<std::string> FleetsOf(const model::Map& map, const orders::OrderOutcome& move,
                                  std::span<const orders::OrderOutcome> orders);

}  // namespace orb::history
