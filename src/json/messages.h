#pragma once

#include "model/messages.h"

#include <optional>
#include <string>
#include <vector>

namespace orb::json {

/// A question or notice of a command.
struct Message {
  std::string Text;              ///< lines are separated by a lone carriage return
  std::optional<bool> Answer{};  ///< of a question; none for a notice
};

/// Answers every question with Yes, or every one with No, and keeps what was said.
class NotedMessages : public model::Messages {
 public:
  explicit NotedMessages(bool yes) : yes_(yes) {}

  bool Warn(const std::string& text) override;
  model::Answer Ask(const std::string& text) override;
  void Show(const std::string& text, model::Icon icon) override;

  const std::vector<Message>& All() const { return all_; }

 private:
  bool yes_;
  std::vector<Message> all_;
};

}  // namespace orb::json
