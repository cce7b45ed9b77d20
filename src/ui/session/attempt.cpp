#include "ui/session/attempt.h"

#include "model/errors.h"

namespace orb::ui {

bool attempt(model::Messages& messages, const std::function<void()>& command,
             const std::function<void()>& clearUp) {
  try {
    command();
    return true;
    // Only the user's errors: any other exception is a fault of the program and ends it.
  } catch (const model::FatalError& fault) {
    clearUp();
    messages.Show(fault.what(), model::Icon::Stop);
    return false;
  }
}

}  // namespace orb::ui
