#pragma once

#include "model/game_state.h"

#include <string>
#include <string_view>
#include <vector>

namespace orb::model {

/// What a power owns and has on the board.
struct PowerCount {
  int Centres = 0;
  int Units = 0;
};

/// Whether the location in that row of the map is a supply centre.
bool IsCentre(const Map& map, int row);

/// Counts the supply centres and units of a power, by its abbreviation.
PowerCount CountPower(const GameState& game, std::string_view power);

/// A power, or "Neutral", and the abbreviations of its supply centres in province order.
struct CentreGroup {
  std::string Heading;
  std::vector<std::string> Centres;
};

/// The powers that own centres, in their order, then the neutral centres if there are any. A centre
/// whose owner is neither a power nor empty belongs to no group.
std::vector<CentreGroup> CentreGroups(const GameState& game);

}  // namespace orb::model
