#include "adjudication/explain.h"

#include "adjudication/explain_parts.h"

namespace orb::adjudication {

std::string Sentence(const Explanation& explanation) {
  std::string sentence = explanation.Verdict;
  if (!explanation.Why.empty()) sentence.append(": ").append(explanation.Why);
  return sentence.append(explanation.Also).append(".");
}

Explanation ExplainOrder(const model::GameState& after, const Resolution& resolution, int order) {
  switch (resolution.Stage) {
    case model::Stage::Retreats:
      return ExplainRetreat(resolution, order);
    case model::Stage::Adjustments:
      return ExplainAdjustment(after, resolution, order);
    default:
      return ExplainMove(resolution, order);
  }
}

std::vector<std::string> ExplainReport(const model::GameState& after, const Resolution& resolution,
                                       Explain explain) {
  std::vector<std::string> sentences(static_cast<std::size_t>(after.ReportLines.Count()));
  for (const ReportEntry& entry : resolution.Entries) {
    std::string& sentence = sentences.at(static_cast<std::size_t>(entry.Line - 1));
    // Two orders for one unit write to the same line of the report.
    if (!sentence.empty()) sentence += ' ';
    sentence += Sentence(explain(after, resolution, entry.Order));
  }
  return sentences;
}

}  // namespace orb::adjudication
