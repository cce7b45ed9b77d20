#include "json/messages.h"

namespace orb::json {

bool NotedMessages::Warn(const std::string& text) {
  all_.push_back({text, yes_});
  return yes_;
}

model::Answer NotedMessages::Ask(const std::string& text) {
  all_.push_back({text, yes_});
  // A plain Yes would only bring the same question for the next unit; the answer would be the same.
  return yes_ ? model::Answer::YesToAll : model::Answer::No;
}

void NotedMessages::Show(const std::string& text, model::Icon /*icon*/) {
  all_.push_back({text});
}

}  // namespace orb::json
