#pragma once

#include "model/game_state.h"
#include "render/surface.h"

#include <string>
#include <vector>

namespace orb::render {

/// A power, or "Neutral", and the abbreviations of its supply centres in province order.
struct CentreGroup {
  std::string Heading;
  std::vector<std::string> Centres;
};

/// The powers that own centres, in their order, then the neutral centres if there are any.
std::vector<CentreGroup> CentreGroups(const model::GameState& game);

/// Clears the surface and lists on it which supply centres each power owns, then the neutral ones,
/// wrapped at the surface's width. Returns the height that the list takes, in twips, whether or
/// not the surface is that high.
double ShowCentreOwnership(const model::GameState& game, Surface& surface);

}  // namespace orb::render
