#pragma once

#include "orders/exchange/vocabulary.h"

#include <span>
#include <string_view>

namespace orb::exchange {

/// The words of many languages for one thing that a unit may do.
struct VerbWords {
  Verb Meaning;
  std::string_view Words;  ///< in small letters, separated by blanks
};

/// All of them; a verb may have several rows.
std::span<const VerbWords> AllVerbWords();

}  // namespace orb::exchange
