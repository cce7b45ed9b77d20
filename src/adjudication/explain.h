#pragma once

#include "adjudication/resolution.h"
#include "model/game_state.h"

#include <string>
#include <vector>

namespace orb::adjudication {

/// Why an order came out as it did.
struct Explanation {
  std::string Verdict;  ///< what happened: "It moved"
  std::string Why{};    ///< the strengths compared, who cut, what was missing; may be empty
  std::string Also{};   ///< what else happened to its unit or its supports; begins with "; "
};

/// "Verdict: why; also.": the explanation as one sentence.
std::string Sentence(const Explanation& explanation);

/// Explains one order: the strengths compared and the orders behind each, who cut, what was
/// missing. The resolution must be completed, but for a rejected order; `after` is the situation
/// that it left. Order 0 of the adjustments stands for their heading: who had to act, and what was
/// done.
Explanation ExplainOrder(const model::GameState& after, const Resolution& resolution, int order);

/// One sentence for each line of `after`'s report; empty for a line that this resolution did not
/// write to.
std::vector<std::string> ExplainReport(const model::GameState& after, const Resolution& resolution);

}  // namespace orb::adjudication
