#pragma once

#include "session/situation.h"

#include <string>
#include <string_view>
#include <vector>

namespace orb::session {

/// How a line of the stage's list that is being written could go on, as whole beginnings of it:
/// the units that can be ordered ("ENG A(Lvp) ") and, once one is written, its possible orders
/// (session/queries.h). Case, blanks and brackets do not matter, and the power may be left out, and
/// the unit's type. Of the power in this row alone; 0: of all. Nothing for an empty line.
std::vector<std::string> Completions(const Situation& situation, std::string_view line, int power);

}  // namespace orb::session
