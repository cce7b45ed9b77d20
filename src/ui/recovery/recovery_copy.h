#pragma once

#include "session/situation.h"

#include <QDateTime>

#include <optional>
#include <string>
#include <string_view>

namespace orb::ui {

/// A game as it was when its window was last seen alive.
struct RecoveryCopy {
  session::Situation situation;
  QDateTime time;
};

// The bytes of a copy: a line of JSON with what no game file holds (the game's file, what was
// last seen of it, whether that is only read, the time, the lists of retreats and adjustments),
// then the game as its own file would have it.

/// Throws FatalError when a text of the game cannot be stored.
std::string formatRecoveryCopy(const session::Situation& situation, const QDateTime& time);

/// Reads a copy into a situation on this map and with these colours; nothing when it is broken.
std::optional<RecoveryCopy> parseRecoveryCopy(std::string_view bytes, const model::GameState& base);

}  // namespace orb::ui
