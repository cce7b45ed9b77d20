#pragma once

#include "session/situation.h"

#include <string>
#include <vector>

namespace orb::letters {

// What a power may be told before a stage is resolved: what it knows itself. Whatever a letter says
// of such a stage is worked out from these two alone, so that no order of another power can show
// through: the same letter would be written whatever the others ordered.

/// The situation with that power's lines alone in the list of its stage. What became of earlier
/// stages stays: everybody was told.
session::Situation OwnView(const session::Situation& situation, int power);

/// What can be said of a line by its own power's orders.
struct Remark {
  std::vector<std::string> Faults;  ///< why it cannot be carried out, whatever the others do
  std::string Unmatched;            ///< why it fits none of the power's own orders
  std::string Open;                 ///< what it needs of others, who may or may not do it
};

/// One for each line of the list of an own view. Throws FatalError in a stage without orders.
std::vector<Remark> RemarksOn(const session::Situation& view);

}  // namespace orb::letters
