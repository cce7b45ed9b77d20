#pragma once

#include "orders/exchange/saying_kinds.h"
#include "orders/exchange/words.h"
#include "orders/exchange/written_order.h"

#include <optional>

namespace orb::exchange {

/// Where the first phrase that says so stands, word by word.
std::optional<TokenRange> FindSaying(Tokens tokens, Saying saying);

}  // namespace orb::exchange
