#include "session/rules.h"

#include "adjudication/explain.h"
#include "adjudication/stages.h"
#include "adjudication/usual/explain.h"
#include "adjudication/usual/stages.h"

namespace orb::session {
namespace {

adjudication::Explain ExplainBy(Rules rules) {
  return rules == Rules::Orb ? adjudication::ExplainOrder : adjudication::usual::ExplainOrder;
}

}  // namespace

std::string_view NameOf(Rules rules) {
  return rules == Rules::Orb ? "orb" : "usual";
}

std::optional<Rules> RulesNamed(std::string_view name) {
  for (const Rules rules : {Rules::Orb, Rules::Usual}) {
    if (name == NameOf(rules)) return rules;
  }
  return std::nullopt;
}

std::string_view RulesName(Rules rules) {
  return rules == Rules::Orb ? "ORB's own rules" : "the usual rules";
}

adjudication::Resolution ResolveStage(Rules rules, model::GameState& game,
                                      model::Messages& messages) {
  return rules == Rules::Orb ? adjudication::ResolveStage(game, messages)
                             : adjudication::usual::ResolveStage(game);
}

adjudication::Explanation Explain(Rules rules, const model::GameState& after,
                                  const adjudication::Resolution& resolution, int order) {
  return ExplainBy(rules)(after, resolution, order);
}

std::string Reason(Rules rules, const model::GameState& after,
                   const adjudication::Resolution& resolution, int order) {
  return adjudication::Sentence(Explain(rules, after, resolution, order));
}

std::vector<std::string> Reasons(Rules rules, const model::GameState& after,
                                 const adjudication::Resolution& resolution) {
  return adjudication::ExplainReport(after, resolution, ExplainBy(rules));
}

}  // namespace orb::session
