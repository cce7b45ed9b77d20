#pragma once

#include "orders/exchange/place_names.h"

namespace orb::exchange {

/// Whether a line of its own surely speaks of something else than the orders: asks for a map, tells
/// what happens "if Germany bounces me again", or "don't tell Germany".
bool SpeaksOfElse(Tokens line, const PlaceNames& names);

/// Whether a sentence denies, supposes, asks or reports something of the orders, and points at
/// them: "I don't want to play these after all".
bool DoubtsOrders(Tokens sentence);

}  // namespace orb::exchange
