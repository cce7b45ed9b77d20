#pragma once

#include "model/game_state.h"

#include <filesystem>
#include <string>
#include <vector>

namespace orb::ui {

/// The games of some files in the order of their seasons.
struct AnimationFiles {
  std::vector<model::GameState> games;
  std::string leftOut;  ///< which files do not fit and why, for the user; empty: none
};

/// Reads game files on the map, and in the colours, of the current game, which stays as it is. A
/// file does not fit when its name gives no season, when it cannot be read, and when it holds an
/// earlier season than the one before it.
AnimationFiles readAnimationFiles(const std::vector<std::filesystem::path>& files,
                                  const model::GameState& current);

}  // namespace orb::ui
