#pragma once

#include "orders/exchange/known_game.h"
#include "orders/exchange/read_line.h"

#include <vector>

namespace orb::exchange {

/// Tells the game what lines order, so that a support can mean a move written below it.
void LearnMoves(const std::vector<ReadLine>& lines, KnownGame& known);

}  // namespace orb::exchange
