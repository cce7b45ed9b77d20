#pragma once

#include "model/messages.h"

#include <functional>

namespace orb::ui {

/// Runs a command of the user. A fatal error is shown in an error box: false. What the command has
/// left on the screen is taken away by `clearUp` first, for the box keeps the event loop running.
bool attempt(
    model::Messages& messages, const std::function<void()>& command,
    const std::function<void()>& clearUp = [] {});

}  // namespace orb::ui
