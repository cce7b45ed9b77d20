#pragma once

#include "orders/exchange/order_part.h"

namespace orb::exchange {

/// Reads tokens that were not understood because a place was expected where a word names none: the
/// word is a slip of the pen if exactly one place that the unit can be ordered to is a letter away.
/// The order is sure if no other place of the map is as near. Nothing where no such order is found.
PartRead ReadWithSlips(Tokens tokens, const PartRead& failed, const KnownGame& known,
                       Context& context);

}  // namespace orb::exchange
