#pragma once

#include "model/game_state.h"

namespace orb::tests {

/// Units close together with orders of all kinds, the same ones for the same seed: moves into each
/// other, supports, convoys, circles; some written badly, twice, or not at all.
model::GameState MeleeOf(unsigned seed);

/// One to three armies at sea, each landing on the support that decides over the next one's fleet,
/// mostly the last on that of the first. Some of it left out or doubled, and others in between.
model::GameState ParadoxOf(unsigned seed);

}  // namespace orb::tests
