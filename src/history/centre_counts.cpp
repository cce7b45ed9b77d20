#include "history/centre_counts.h"

#include "model/counts.h"

namespace orb::history {

CentreCounts CountCentres(const model::GameState& game) {
  CentreCounts counts{};
  for (std::size_t power = 0; power < counts.size(); ++power) {
    const model::Country& country = game.Countries[static_cast<int>(power) + 1];
    counts[power] = model::CountPower(game, country.Abbreviation).Centres;
  }
  return counts;
}

}  // namespace orb::history
