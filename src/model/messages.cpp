#include "model/messages.h"

#include "model/version.h"

namespace orb::model {

constexpr std::string_view ProgramName = "ORB v" ORB_VERSION;

std::string WarningText(std::string_view subject, std::string_view problem) {
  std::string text("Warning: ");
  return text.append(subject).append("\r").append(problem).append("\rContinue?");
}

std::string WarningText(std::string_view subject) {
  return std::string("Warning: ").append(subject).append("\rContinue?");
}

}  // namespace orb::model
