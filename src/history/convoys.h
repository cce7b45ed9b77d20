#pragma once

#include "model/map.h"
#include "orders/order_outcome.h"

#include <span>
#include <string>
#include <vector>

namespace orb::history {

/// Whether a support or convoy is for this move: it names the unit's whole location, but any coast
/// of its destination.
bool IsForMove(const orders::OrderOutcome& order, const orders::OrderOutcome& move);

/// The locations of the fleets that are to carry the move, from each fleet to the one nearest to
/// it, whatever the order of the orders. The move's places must be on the map; empty for a move
/// that is not carried.
std::vector<std::string> FleetsOf(const model::Map& map, const orders::OrderOutcome& move,
                                  std::span<const orders::OrderOutcome> orders);

}  // namespace orb::history
