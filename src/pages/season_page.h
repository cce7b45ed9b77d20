#pragma once

#include "pages/maps.h"
#include "pages/season.h"

#include <string>
#include <vector>

namespace orb::pages {

/// The seasons of a game, at least one, as one HTML page that loads nothing else: maps, orders,
/// report with reasons, what the powers own, texts. Without JavaScript the last season is at its
/// top and the others below; with it they are leafed through and played. Throws as Maps::Layer
/// does.
std::string SeasonPage(const std::vector<Season>& seasons, Maps& maps);

}  // namespace orb::pages
