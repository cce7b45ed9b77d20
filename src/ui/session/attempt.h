#pragma once

#include "model/messages.h"

#include <functional>

namespace orb::ui {

/// Runs a command of the user. A fatal error is told in an error box: false.
bool attempt(model::Messages& messages, const std::function<void()>& command);

}  // namespace orb::ui
