#pragma once

#include "session/situation.h"

#include <cstddef>
#include <string>
#include <string_view>

namespace orb::session {

/// What resolving a stage brought, in one line: "Moves resolved: 19 orders succeeded, 3 failed; 1
/// unit dislodged." Of the season's outcomes those from `first` on are of the stage.
std::string ResolutionSummary(const Situation& after, std::string_view stage, std::size_t first);

}  // namespace orb::session
