#pragma once

#include "adjudication/resolution.h"
#include "model/game_state.h"

namespace orb::adjudication {

/// Decides every pending move of the resolution's orders pass by pass: forces, opposite moves,
/// moves against units that stay, all other moves, and rings. Marks dislodged units.
void ResolveMoves(model::GameState& game, Resolution& resolution);

}  // namespace orb::adjudication
