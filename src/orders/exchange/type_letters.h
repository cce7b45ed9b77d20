#pragma once

#include "orders/exchange/known_game.h"
#include "orders/exchange/source_line.h"

#include <deque>

namespace orb::exchange {

/// Finds the writer's own letters or words for armies and fleets, "V Londen", "L Liverpool", by the
/// units that stand in the places behind them, and makes them types. Each must stand before units
/// of one type alone, and more than once.
void LearnTypeLetters(std::deque<SourceLine>& text, const KnownGame& known);

}  // namespace orb::exchange
