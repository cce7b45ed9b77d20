#pragma once

#include "session/situation.h"

#include <vector>

namespace orb::session {

/// The other files of a game: those beside its own that end in .orb, have its title and hold no
/// later season or stage. What cannot be read is no file of the game. None where the game has no
/// file.
std::vector<Situation> FilesBeside(const Situation& situation);

/// The situation with what the files beside its own tell of its season until now, where it does not
/// know that itself: report, reasons and outcomes. They tell it by orders that lead to where its
/// units stand; orders that still wait for their stage are no part of it.
Situation ToldByFilesBeside(Situation situation);

}  // namespace orb::session
