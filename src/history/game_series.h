#pragma once

#include "model/game_state.h"

#include <filesystem>
#include <string>
#include <vector>

namespace orb::history {

/// The games of some files in the order of their seasons.
struct GameSeries {
  std::vector<model::GameState> Games;
  std::string LeftOut;  ///< which files do not fit and why, for the user; empty: none
};

/// Reads game files on the map, and in the colours, of the current game, which stays as it is. A
/// file does not fit when its name gives no season, when it cannot be read, and when it holds an
/// earlier season than the one before it.
GameSeries ReadGameSeries(const std::vector<std::filesystem::path>& files,
                          const model::GameState& current);

}  // namespace orb::history
