#pragma once

#include <string_view>

namespace orb::exchange {

/// Whether a word in small letters is of players' everyday life and says nothing of orders: "(poor
/// lads, still raining)".
bool IsEverydayWord(std::string_view word);

}  // namespace orb::exchange
