#pragma once

#include "session/situation.h"

#include <optional>

// What several situations of a game tell of each other: its files hold no reports.

namespace orb::session {

/// What the situation's orders lead to, with the report, if by either rules that is where the units
/// stand later; nothing if they led elsewhere, or there are none.
std::optional<Situation> LedTo(const Situation& before, const model::GameState& later);

/// The later of two situations of a season with what is known of the season until then: report,
/// reasons and outcomes, where the orders of the earlier one tell of them or it knows them itself.
Situation WithStory(Situation later, const Situation& earlier);

}  // namespace orb::session
