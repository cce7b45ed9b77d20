#pragma once

#include "model/messages.h"

#include <string>

namespace orb::orders {

/// The questions of one resolution: asks them and keeps the order at which the user stopped.
class Questions {
 public:
  /// The messages must outlive it.
  explicit Questions(model::Messages& messages) : messages_(messages) {}

  /// Warns about the order in that row of the table; false when the user does not want to continue.
  bool GoOn(int order, const std::string& warning) {
    if (messages_.Warn(warning)) return true;
    stoppedAt_ = order;
    return false;
  }

  /// For questions that are about no order that somebody wrote.
  model::Messages& Messages() { return messages_; }

  /// The row of the order whose warning was answered No; 0: none was.
  int StoppedAt() const { return stoppedAt_; }

 private:
  model::Messages& messages_;
  int stoppedAt_ = 0;
};

}  // namespace orb::orders
