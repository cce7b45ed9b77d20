#pragma once

#include "model/game_state.h"

#include <string>
#include <string_view>
#include <vector>

namespace orb::orders {

/// The list of orders of the stage that the game is in; that of the moves stage if in none.
std::vector<std::string>& StageList(model::GameState& game);
const std::vector<std::string>& StageList(const model::GameState& game);

/// The part of an order line by which lists tell units apart: up to and including its first ")".
/// Empty for a text without one. It is taken as it is written, in whatever case.
std::string_view UnitPart(std::string_view line);

/// Files a typed order at the end of a list of order lines. The last line that begins with the same
/// UnitPart is the unit's previous order and is removed. False, the list unchanged, for a text
/// without one.
bool FileOrder(std::vector<std::string>& list, std::string_view text);

/// Removes the line at this position, counted from 0; false when there is none.
bool DeleteOrder(std::vector<std::string>& list, int position);

}  // namespace orb::orders
