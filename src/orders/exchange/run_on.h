#pragma once

#include "orders/exchange/order_part.h"

#include <utility>
#include <vector>

namespace orb::exchange {

/// Orders read from parts of some tokens, in order.
using PartsRead = std::vector<std::pair<TokenRange, PartRead>>;

/// Reads orders that follow each other with nothing between them, "A Par-Bur A Mar H". Each must
/// begin with a type of unit, a power, a verb or a number, "2.", each must be understood and for
/// another unit, and there must be no other way to part them: else nothing comes back and the
/// context stays.
PartsRead ReadRunOn(Tokens tokens, const KnownGame& known, Context& context);

}  // namespace orb::exchange
