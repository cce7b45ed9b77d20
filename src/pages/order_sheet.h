#pragma once

#include "pages/maps.h"

#include <string>

namespace orb::pages {

/// For whom an order sheet is.
struct SheetRequest {
  const model::GameState& Game;
  std::string Power = {};  ///< abbreviation; empty: all powers, with a chooser
  std::string Mail = {};   ///< the address that the orders go to; empty: none is proposed
};

/// A page on which a player enters the orders of the game's stage, by tapping the map or out of
/// lists. All possible orders are in it; those that others have entered are not. Throws FatalError
/// in a stage without orders, and as Maps::Layer does.
std::string OrderSheet(const SheetRequest& request, Maps& maps);

}  // namespace orb::pages
