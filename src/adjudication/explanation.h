#pragma once

#include <string>

namespace orb::adjudication {

/// Why an order came out as it did.
struct Explanation {
  std::string Verdict;  ///< what happened: "It moved"
  std::string Why{};    ///< the strengths compared, who cut, what was missing; may be empty
  std::string Also{};   ///< what else happened to its unit or its supports; begins with "; "
};

}  // namespace orb::adjudication
