#pragma once

#include "session/situation.h"

#include <functional>
#include <string>
#include <string_view>
#include <vector>

namespace orb::session {

/// Orders in place of others, after which an order of the moves would have come out otherwise.
struct Alternative {
  std::vector<std::string> Orders;  ///< one line for each unit whose order changes
  std::vector<std::string> List;    ///< that of the moves with these lines
  std::string Power;                ///< which gives them
  std::string Sentence;             ///< what comes of the order in question then, and why
  int OtherChanges = 0;             ///< how many other orders come out otherwise, too
};

/// What is asked about an order of the moves: which changes would have changed it. The situation is
/// that before they are resolved, with the lines of its list; the rules are those in force.
struct Question {
  const Situation& Before;
  std::string Order;     ///< a line of the list, or the unit of one: "ENG A(Lon)"
  std::string Sentence;  ///< what comes of it as things stand, and why
  int Row = 0;           ///< of its order in the resolution
  std::string Power;     ///< of its unit
};

/// Resolves the moves as they stand and finds the order in them, also one that nobody wrote. Throws
/// FatalError in another stage, and for an order that is not there.
Question Ask(const Situation& before, std::string_view order);

/// The changes of one unit's order, to any possible one, after which the order in question would
/// have come out otherwise or its unit not been dislodged. The power of the order comes first, then
/// the others as in their table; of each those with the fewest other changes first.
std::vector<Alternative> SingleChanges(const Question& question);

/// How far a search is; false ends it.
using Progress = std::function<bool(int done, int all)>;

/// The same for changes of two units' orders of one power, of which neither alone would do. What
/// was found so far when `goOn` ends the search.
std::vector<Alternative> PairsOfChanges(const Question& question, std::string_view power,
                                        const Progress& goOn);

}  // namespace orb::session
