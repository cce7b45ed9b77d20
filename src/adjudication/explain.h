#pragma once

#include "adjudication/resolution.h"
#include "model/game_state.h"

#include <string>
#include <vector>

namespace orb::adjudication {

/// One sentence that says why the order came out as it did: the strengths compared and the orders
/// behind each, who cut, what was missing. The resolution must be completed; `after` is the
/// situation that it left.
std::string ExplainOrder(const model::GameState& after, const Resolution& resolution, int order);

/// One sentence for each line of `after`'s report; empty for a line that this resolution did not
/// write to.
std::vector<std::string> ExplainReport(const model::GameState& after, const Resolution& resolution);

/// The sentences of each stage, by the rules above.
std::string ExplainMove(const model::GameState& after, const Resolution& resolution, int order);
std::string ExplainRetreat(const model::GameState& after, const Resolution& resolution, int order);
std::string ExplainAdjustment(const model::GameState& after, const Resolution& resolution,
                              int order);

/// "ENG A(Lon)".
std::string UnitName(const orders::OrderLine& order);

/// "army" or "fleet".
std::string_view TypeName(const orders::OrderLine& order);

}  // namespace orb::adjudication
