#pragma once

#include "adjudication/explanation.h"
#include "adjudication/resolution.h"
#include "model/game_state.h"
#include "model/messages.h"

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace orb::session {

/// By which rules a stage is resolved: ORB's own, or those that most players know.
enum class Rules : std::uint8_t { Orb, Usual };

constexpr Rules TheOther(Rules rules) {
  return rules == Rules::Orb ? Rules::Usual : Rules::Orb;
}

/// As command lines and other programs have them: "orb" or "usual".
std::string_view NameOf(Rules rules);
std::optional<Rules> RulesNamed(std::string_view name);

/// "ORB's own rules" or "the usual rules".
std::string_view RulesName(Rules rules);

/// Resolves the stage in place by these rules; see adjudication/stages.h and usual/stages.h. The
/// usual rules ask nothing.
adjudication::Resolution ResolveStage(Rules rules, model::GameState& game,
                                      model::Messages& messages);

/// Explains an order of a resolution by these rules; see adjudication/explain.h.
adjudication::Explanation Explain(Rules rules, const model::GameState& after,
                                  const adjudication::Resolution& resolution, int order);

/// Why the order came out as it did, as a sentence; order 0 stands for the adjustments' heading.
std::string Reason(Rules rules, const model::GameState& after,
                   const adjudication::Resolution& resolution, int order);

/// The same for each line of the report; empty for lines that this resolution did not write to.
std::vector<std::string> Reasons(Rules rules, const model::GameState& after,
                                 const adjudication::Resolution& resolution);

}  // namespace orb::session
