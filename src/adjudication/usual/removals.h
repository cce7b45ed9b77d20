#pragma once

#include "model/game_state.h"
#include "orders/pieces.h"
#include "orders/unit_set.h"

namespace orb::adjudication::usual {

/// Which of these units of one power is removed where nobody says so: the unit farthest from the
/// power's owned centres (fewest moves, counted as the unit itself would move, for armies over
/// water as over land; one that can reach none is farthest), a fleet before an army at equal
/// distance, then the place whose full name comes first in the alphabet. The set must not be empty.
int ChooseRemoval(const model::GameState& game, const orders::Pieces& pieces,
                  orders::UnitSet units);

}  // namespace orb::adjudication::usual
