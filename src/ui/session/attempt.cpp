#include "ui/session/attempt.h"

#include "model/errors.h"

namespace orb::ui {

bool attempt(model::Messages& messages, const std::function<void()>& command) {
  try {
    command();
    return true;
  } catch (const model::FatalError& fault) {
    messages.Show(fault.what(), model::Icon::Stop);
    return false;
  }
}

}  // namespace orb::ui
