#pragma once

#include "orders/exchange/place_names.h"

#include <vector>

namespace orb::exchange {

/// Parts types of units from places that they are written into one word with: "APar" into "A" and
/// "Par", where nothing else is named by the word and a verb or coast stands beside it.
void PartGluedTypes(std::vector<Token>& tokens, const PlaceNames& names);

}  // namespace orb::exchange
