#pragma once

#include "model/game_state.h"

#include <array>
#include <string>

namespace orb::history {

/// How many supply centres each power owns, in the order of the powers.
using CentreCounts = std::array<int, model::CountryCount>;

/// Those of a situation.
CentreCounts CountCentres(const model::GameState& game);

/// What the powers own at the last that is known of a season.
struct SeasonCentres {
  std::string Season;  ///< "Spring 1901"
  int Year = 0;
  CentreCounts Centres{};
};

}  // namespace orb::history
