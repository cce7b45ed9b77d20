#pragma once

#include "orders/exchange/words.h"

#include <vector>

namespace orb::exchange {

/// Makes the marks that somebody dictated marks again: "full stop", "new line", and where a line
/// has no others "stop" and "comma", as in telegrams.
void ReadSpokenMarks(std::vector<Token>& tokens);

}  // namespace orb::exchange
