#pragma once

#include "model/game_state.h"
#include "render/surface.h"

#include <string>
#include <vector>

namespace orb::render {

/// Clears the surface and lists on it which supply centres each power owns, then the neutral ones,
/// wrapped at the surface's width. Returns the height that the list takes, in twips, whether or
/// not the surface is that high.
double ShowCentreOwnership(const model::GameState& game, Surface& surface);

}  // namespace orb::render
