#pragma once

#include "pages/season.h"

#include <string>
#include <vector>

namespace orb::pages {

/// A chart of the centres that each power owns at the end of each season, and a table of the same;
/// empty for fewer than two seasons.
std::string CentresChart(const std::vector<Season>& seasons);

}  // namespace orb::pages
