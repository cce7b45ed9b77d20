#pragma once

#include "adjudication/explanation.h"
#include "adjudication/resolution.h"
#include "model/game_state.h"

#include <string>
#include <vector>

namespace orb::adjudication {

/// "Verdict: why; also.": the explanation as one sentence.
std::string Sentence(const Explanation& explanation);

/// Explains one order: the strengths compared and the orders behind each, who cut, what was
/// missing. The resolution must be completed, but for a rejected order; `after` is the situation
/// that it left. Order 0 of the adjustments stands for their heading: who had to act, and what was
/// done.
Explanation ExplainOrder(const model::GameState& after, const Resolution& resolution, int order);

/// How ExplainOrder and its like for other rules are called.
using Explain = Explanation (*)(const model::GameState& after, const Resolution& resolution,
                                int order);

/// One sentence for each line of `after`'s report; empty for a line that this resolution did not
/// write to. `explain` is that of the rules which it was resolved by.
std::vector<std::string> ExplainReport(const model::GameState& after, const Resolution& resolution,
                                       Explain explain = ExplainOrder);

}  // namespace orb::adjudication
