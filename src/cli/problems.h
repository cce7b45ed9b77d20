#pragma once

#include "model/game_state.h"

#include <string>
#include <vector>

namespace orb::cli {

/// What is wrong with an order, a unit or a power.
struct Problem {
  std::string Subject;  ///< the order as it stands; "ENG A(Lon)" or "ENG" where there is none
  std::string Text;
};

/// Every problem of the orders in the list of the game's stage, in the order of the list, then the
/// units without orders and the powers whose counts do not fit. Throws FatalError in a stage
/// without orders.
std::vector<Problem> FindProblems(const model::GameState& game);

}  // namespace orb::cli
