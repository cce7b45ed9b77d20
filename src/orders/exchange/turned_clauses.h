#pragma once

#include "orders/exchange/known_game.h"
#include "orders/exchange/place_names.h"

#include <vector>

namespace orb::exchange {

/// Puts the unit of a clause first and "to" before its destination, where its words stand in
/// another order or leave the verb out: "Serbia is to be taken by Budapest", "Spain gets the army
/// from Marseilles", "To Burgundy: Paris", "the London fleet for the North Sea", "ich baue F NTH
/// ab". `followsMove`: the sentence orders a move before it, so that the verb may be left out.
void TurnClause(std::vector<Token>& words, const PlaceNames& names, bool followsMove);

}  // namespace orb::exchange
