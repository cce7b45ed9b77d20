#include "adjudication/explain.h"

#include "adjudication/explain_parts.h"
#include "orders/later_stages.h"
#include "orders/parser.h"

namespace orb::adjudication {
using orders::OrderLine;

std::string UnitName(const OrderLine& order) {
  return order.Power + " " + order.UnitType + "(" + order.Location + ")";
}

std::string ExplainSyntax(const model::Map& map, const OrderLine& order, ResolvedStage stage) {
  switch (stage) {
    case ResolvedStage::Retreats:
      return FaultText(order, orders::FindRetreatFault(map, order));
    case ResolvedStage::Adjustments:
      return FaultText(order, orders::FindAdjustmentFault(map, order));
    default:
      return FaultText(order, orders::FindSyntaxFault(map, order));
  }
}

std::string ExplainOrder(const model::GameState& after, const Resolution& resolution, int order) {
  switch (resolution.Stage) {
    case ResolvedStage::Retreats:
      return ExplainRetreat(after, resolution, order);
    case ResolvedStage::Adjustments:
      return ExplainAdjustment(after, resolution, order);
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
