#pragma once

#include "pages/season.h"

#include <string>

namespace orb::pages {

/// The report of a season: under each heading or power its lines with their results and reasons.
/// Each line tells by attributes of whose order it is, and in which places those stand who had a
/// part in it, its own one first.
std::string ReportSection(const Season& season);

/// The orders without their results, where there is no report: those that the positions tell of.
std::string MovementsSection(const Season& season);

/// A table of the powers: players, centres and units.
std::string PowersSection(const model::GameState& game);

/// The dot of a power's colour; PowerSigns must stand somewhere in the page.
std::string PowerSign(const model::Country& country);
std::string PowerSigns(const model::CountryTable& countries);

}  // namespace orb::pages
