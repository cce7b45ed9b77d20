#pragma once

#include "orders/exchange/run_on.h"

namespace orb::exchange {

/// Words that are no order, and may change the orders next to them.
PartRead Remark();

/// Reads the orders that stand among other words, "on reflection A Par - Bur, if Tom agrees"; what
/// stands around them comes back as remarks. Nothing comes back where there are none.
PartsRead ReadEmbedded(Tokens tokens, const KnownGame& known, Context& context);

}  // namespace orb::exchange
