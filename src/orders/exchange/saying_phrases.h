#pragma once

#include "orders/exchange/saying_kinds.h"

#include <span>
#include <string_view>

namespace orb::exchange {

/// Phrases that say the same of orders.
struct SayingPhrases {
  Saying Says;
  std::string_view Phrases;  ///< separated by "|", in small letters, without accents; "x*": any
                             ///< word that begins so; "=x": the words of the line are no others
};

/// All that are known; a saying may have several entries.
std::span<const SayingPhrases> AllSayingPhrases();

}  // namespace orb::exchange
