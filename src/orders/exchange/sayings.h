#pragma once

#include "orders/exchange/saying_kinds.h"
#include "orders/exchange/words.h"
#include "orders/exchange/written_order.h"

#include <optional>

namespace orb::exchange {

/// Whether a phrase that says so may begin with a word.
inline bool MayBegin(const Token& token, Saying saying) {
  return (token.Means.Sayings & (1U << static_cast<unsigned>(saying))) != 0;
}

/// Where the first phrase that says so stands, word by word.
std::optional<TokenRange> FindSaying(Tokens tokens, Saying saying);

}  // namespace orb::exchange
