#pragma once

#include "model/game_state.h"

#include <array>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace orb::model {

/// What is edited of a game apart from its map: its names, its place in time and its texts.
struct SeasonFacts {
  std::string Title;
  std::string Season;
  std::int16_t Year = 0;
  model::Stage Stage = Stage::Moves;                  ///< Other: the one that the game has
  std::array<std::string, CountryCount> PlayerNames;  ///< in the order of the powers
  std::vector<std::string> TextLines;                 ///< at most 100
};

/// Whether a season comes to the first stage before the other.
bool StageIsBefore(Stage stage, Stage other);

SeasonFacts SeasonFactsOf(const GameState& game);

/// Puts the facts into the game; an empty title becomes the default one. Units, centres and the
/// lists of all stages stay. The report stays too, unless the stage goes back: what it tells has
/// not happened then. Throws IndexOutOfRange for too many lines of text, the game unchanged.
void EditSeason(GameState& game, const SeasonFacts& facts);

}  // namespace orb::model
