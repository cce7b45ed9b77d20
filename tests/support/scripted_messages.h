#pragma once

#include "model/messages.h"

#include <string>
#include <utility>
#include <vector>

namespace orb::tests {

/// Answers questions from a list, and Yes when it is used up; keeps all that was said.
class ScriptedMessages : public model::Messages {
 public:
  explicit ScriptedMessages(std::vector<model::Answer> answers = {})
      : answers_(std::move(answers)) {}

  bool Warn(const std::string& text) override {
    Questions.push_back(text);
    return Next() != model::Answer::No;
  }

  model::Answer Ask(const std::string& text) override {
    Questions.push_back(text);
    return Next();
  }

  void Show(const std::string& text, model::Icon icon) override { Shown.emplace_back(text, icon); }

  std::vector<std::string> Questions;
  std::vector<std::pair<std::string, model::Icon>> Shown;

 private:
  model::Answer Next() { return next_ < answers_.size() ? answers_[next_++] : model::Answer::Yes; }

  std::vector<model::Answer> answers_;
  std::size_t next_ = 0;
};

}  // namespace orb::tests
