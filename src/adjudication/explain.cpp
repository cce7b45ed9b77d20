#include "adjudication/explain.h"

#include "adjudication/explain_parts.h"
#include "orders/parser.h"

namespace orb::adjudication {
namespace {

using orders::OrderLine;
using orders::SyntaxFault;

SyntaxFault LaterStageFault(const model::Map& map, const OrderLine& order, ResolvedStage stage) {
  if (model::FindCountry(order.Power) == 0) return SyntaxFault::Power;
  const bool adjusts = stage == ResolvedStage::Adjustments;
  const bool verbKnown = order.Kind == "DISBAND" || order.Kind == (adjusts ? "BUILD" : "RETREAT");
  if (adjusts && !verbKnown) return SyntaxFault::AdjustmentVerb;
  if (order.UnitType != "A" && order.UnitType != "F") return SyntaxFault::UnitType;
  if (model::FindProvince(map, order.Location) == 0) return SyntaxFault::Location;
  if (!verbKnown) return SyntaxFault::RetreatVerb;
  if (order.Kind == "RETREAT" && model::FindProvince(map, order.Target) == 0) {
    return SyntaxFault::Destination;
  }
  return SyntaxFault::None;
}

}  // namespace

std::string UnitName(const OrderLine& order) {
  return order.Power + " " + order.UnitType + "(" + order.Location + ")";
}

std::string ExplainSyntax(const model::Map& map, const OrderLine& order, ResolvedStage stage) {
  return FaultText(order, stage == ResolvedStage::Moves ? FindSyntaxFault(map, order)
                                                        : LaterStageFault(map, order, stage));
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
