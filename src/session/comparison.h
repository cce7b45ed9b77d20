#pragma once

#include "session/rules.h"

#include <string>
#include <vector>

namespace orb::session {

/// An order that comes out otherwise by the other rules.
struct Difference {
  int Order = 0;      ///< its row in the resolution's table; 0: one that only the other rules know
  int Line = 0;       ///< the line of the report that tells of it; 0: none does
  std::string Text;   ///< the order
  std::string Here;   ///< what came of it, and why; empty for row 0
  std::string There;  ///< "By the usual rules: " and the other sentence

  bool operator==(const Difference&) const = default;
};

/// What one stage's resolution came to by one and the other rules.
using Differences = std::vector<Difference>;

/// Resolves the same orders by the other rules, on a copy of the situation before, and tells which
/// came out otherwise. What differs is judged by what happens on the board and to the order: its
/// success, whether its unit is dislodged, where that may retreat to, what is built or removed.
Differences Compare(Rules rules, const model::GameState& before, const model::GameState& after,
                    const adjudication::Resolution& resolution);

/// "3 orders came out otherwise than by the usual rules"; "No order ..." for none. `rules` are
/// those in force.
std::string DifferencesText(int count, Rules rules);

}  // namespace orb::session
