#pragma once

#include "adjudication/resolution.h"
#include "model/game_state.h"

#include <string>
#include <vector>

namespace orb::adjudication {

/// Why a line would not pass the checks; several when more than one thing is wrong.
using LineProblems = std::vector<std::string>;

/// A power whose units would not be as many as its centres.
struct PowerProblem {
  std::string Power;  ///< its abbreviation
  std::string Text;
};

/// What the checks of the stage say of its list as things stand.
struct ListCheck {
  std::vector<LineProblems> Lines;     ///< one per line of the list; empty: it would pass
  std::vector<std::string> Unordered;  ///< units that need an order and have none: "ENG A(Lon)"
  std::vector<PowerProblem> Powers;    ///< of the adjustments
};

/// Checks the list of the game's stage as resolving it would, without a question. Lines for which
/// there is no room in the order table have that as their problem. A stage without orders gives an
/// empty check.
ListCheck CheckList(const model::GameState& game);

/// The stage's list as resolving it would check it, without a question: what each line means and
/// whether it was rejected, and an order for each unit that had none. Throws IndexOutOfRange for
/// more than 80 orders, and FatalError in a stage without orders.
Resolution CheckedOrders(const model::GameState& game);

/// The powers whose units will not be as many as their centres after these adjustments.
std::vector<PowerProblem> CountProblems(const model::GameState& game,
                                        const orders::OrderTable& table);

}  // namespace orb::adjudication
