#include "model/messages.h"

namespace orb::model {

std::string WarningText(std::string_view subject, std::string_view problem) {
  std::string text("Warning: ");
  return text.append(subject).append("\r").append(problem).append("\rContinue?");
}

std::string WarningText(std::string_view subject) {
  return std::string("Warning: ").append(subject).append("\rContinue?");
}

}  // namespace orb::model
