#pragma once

#include "pages/season.h"

#include <vector>

namespace orb::pages {

/// The other files of a game: those beside its own that end in .orb, have its title and hold no
/// later season. What cannot be read is no file of the game. None where the game has no file.
std::vector<Source> FilesBeside(const session::Situation& situation);

}  // namespace orb::pages
