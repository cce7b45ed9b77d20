#pragma once

#include "model/game_state.h"

#include <string>
#include <string_view>
#include <vector>

namespace orb::exchange {

/// The line that an order sheet puts below its orders: of which game, season, stage and power they
/// are. "[ORB sheet: FRA Spring-1901 moves 1a2b3c4d]"; the digits stand for the game's title.
std::string CheckLineText(const model::GameState& game, std::string_view power);

/// The text with blanks in place of such lines, which are no orders; all places stay.
std::string WithoutCheckLines(std::string_view text);

/// Where a text has lines of sheets of another game, season or stage, or of another power than the
/// one whose orders it should hold (empty: of any), a sentence for each of these differences.
std::vector<std::string> SheetWarnings(const model::GameState& game, std::string_view text,
                                       std::string_view power);

}  // namespace orb::exchange
