#pragma once

#include "session/situation.h"

#include <string>

namespace orb::ui {

/// What is tried out beside the game, which it leaves as it is.
struct Trial {
  session::Situation outcome;  ///< the situation itself where its stage cannot be resolved
  std::string objection = {};  ///< why it cannot, as a sentence; else empty
  std::string change = {};     ///< the orders that are other than in the game; empty: none
};

/// Tries out the stage of a situation as its orders are; `compare`: also by the other rules.
Trial tryOutStage(const session::Situation& situation, bool compare);

}  // namespace orb::ui
