#include "adjudication/explain.h"

#include "adjudication/adjustments.h"

namespace orb::adjudication {
namespace {

/// What each power had when the adjustments began.
std::string ExplainCounts(const model::GameState& after, const Resolution& resolution) {
  std::string sentence;
  for (const model::Country& country : after.Countries) {
    int units = 0;
    for (const model::Unit& unit : resolution.UnitsBefore) {
      if (unit.Power == country.Abbreviation) ++units;
    }
    const int centres = CountPower(after, country.Abbreviation).Centres;
    if (units == 0 && centres == 0) continue;
    sentence += sentence.empty() ? "Before the adjustments " : ", ";
    sentence += country.Abbreviation + " had " + std::to_string(units) + " units and " +
                std::to_string(centres) + " centres";
  }
  return sentence.empty() ? "No power had units or centres." : sentence + ".";
}

}  // namespace

std::string UnitName(const orders::OrderLine& order) {
  return order.Power + " " + order.UnitType + "(" + order.Location + ")";
}

std::string_view TypeName(const orders::OrderLine& order) {
  return order.UnitType == "A" ? "army" : "fleet";
}

std::string ExplainOrder(const model::GameState& after, const Resolution& resolution, int order) {
  switch (resolution.Stage) {
    case ResolvedStage::Retreats:
      return ExplainRetreat(after, resolution, order);
    case ResolvedStage::Adjustments:
      return order == 0 ? ExplainCounts(after, resolution)
                        : ExplainAdjustment(after, resolution, order);
    default:
      return ExplainMove(after, resolution, order);
  }
}

std::vector<std::string> ExplainReport(const model::GameState& after,
                                       const Resolution& resolution) {
  std::vector<std::string> sentences(static_cast<std::size_t>(after.ReportLines.Count()));
  for (const ReportEntry& entry : resolution.Entries) {
    std::string& sentence = sentences.at(static_cast<std::size_t>(entry.Line - 1));
    if (!sentence.empty()) sentence += ' ';
    sentence += ExplainOrder(after, resolution, entry.Order);
  }
  return sentences;
}

}  // namespace orb::adjudication
