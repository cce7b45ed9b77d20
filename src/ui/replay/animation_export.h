#pragma once

#include "history/replay_sequence.h"
#include "model/messages.h"
#include "ui/session/desk.h"

#include <QWidget>

#include <filesystem>
#include <optional>
#include <vector>

namespace orb::ui {

/// Asks where to save an animation and saves it; it can be cancelled while it is being drawn.
/// Returns the file written; nothing after a cancellation or an error, which is shown in a message
/// box and leaves no file behind. The parts are its own: other animations may begin meanwhile.
std::optional<std::filesystem::path> exportAnimation(std::vector<history::ReplayPart> parts,
                                                     const Desk& desk, model::Messages& messages,
                                                     QWidget* window);

}  // namespace orb::ui
