#pragma once

#include "adjudication/resolution.h"
#include "model/game_state.h"

#include <string>
#include <vector>

namespace orb::adjudication {

/// One sentence that says why the order came out as it did: the strengths compared and the orders
/// behind each, who cut, what was missing. A rejected order's sentence reads "verdict: why.". The
/// resolution must be completed, but for a rejected order; `after` is the situation that it left.
/// Order 0 of the adjustments stands for their heading: who had to act, and what was done.
std::string ExplainOrder(const model::GameState& after, const Resolution& resolution, int order);

/// One sentence for each line of `after`'s report; empty for a line that this resolution did not
/// write to.
std::vector<std::string> ExplainReport(const model::GameState& after, const Resolution& resolution);

/// The first rule of its stage's text form that the order breaks, as words for the user; empty for
/// a correct order.
std::string ExplainSyntax(const model::Map& map, const orders::OrderLine& order,
                          ResolvedStage stage);

/// "ENG A(Lon)".
std::string UnitName(const orders::OrderLine& order);

}  // namespace orb::adjudication
