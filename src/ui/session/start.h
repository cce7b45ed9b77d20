#pragma once

#include "model/messages.h"
#include "session/situation.h"
#include "ui/session/places.h"
#include "ui/session/view.h"

#include <filesystem>

namespace orb::ui {

/// What the window opens with. Made before the window, so that a start that fails shows no window.
struct Start {
  session::Situation situation;
  View view = {};
};

/// Loads the map and the settings and sets up a new game, or opens the named game file. Throws
/// FatalError.
Start startProgram(const Places& places, const std::filesystem::path& gameFile,
                   model::Messages& messages);

}  // namespace orb::ui
