#pragma once

#include "model/messages.h"

#include <exception>
#include <functional>
#include <string>

namespace orb::ui {

/// The sentence for the user about an exception: its own one, or that memory is short or the
/// program has a fault.
std::string sentenceOf(const std::exception_ptr& thrown);

/// Runs a command of the user. Whatever it throws is shown in an error box: false. What the command
/// has left on the screen is taken away by `clearUp` first, for the box keeps the event loop
/// running.
bool attempt(
    model::Messages& messages, const std::function<void()>& command,
    const std::function<void()>& clearUp = [] {});

}  // namespace orb::ui
