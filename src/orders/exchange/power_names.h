#pragma once

#include "orders/exchange/words.h"

#include <cstddef>
#include <string_view>

namespace orb::exchange {

/// A power, and the token behind its name.
struct PowerName {
  int Power = 0;  ///< 1..7, 0: none
  std::size_t Next = 0;
};

/// The power named at this token: by name, abbreviation, people, with or without "the".
PowerName PowerAt(Tokens tokens, std::size_t at);

/// Whether the name of a power may begin with a word.
bool MayBeginPower(std::string_view word);

/// The first power that is named anywhere, or 0.
int PowerIn(Tokens tokens);

}  // namespace orb::exchange
