#include "ui/session/attempt.h"

#include "model/errors.h"

#include <exception>
#include <new>
#include <string>

namespace orb::ui {
std::string sentenceOf(const std::exception_ptr& thrown) {
  try {
    std::rethrow_exception(thrown);
  } catch (const model::FatalError& fault) {
    return fault.what();
  } catch (const std::bad_alloc&) {
    return "There is not enough memory for this.";
  } catch (const std::exception& fault) {
    return std::string("The program has a fault: ").append(fault.what());
  } catch (...) {
    return "The program has a fault.";
  }
}

bool attempt(model::Messages& messages, const std::function<void()>& command,
             const std::function<void()>& clearUp) {
  try {
    command();
    return true;
  } catch (...) {
    clearUp();
    messages.Show(sentenceOf(std::current_exception()), model::Icon::Stop);
    return false;
  }
}

}  // namespace orb::ui
