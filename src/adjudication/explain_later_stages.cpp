#include "adjudication/explain.h"
#include "model/text.h"
#include "orders/lookups.h"

namespace orb::adjudication {
namespace {

using orders::OrderLine;

std::string MissingUnit(const OrderLine& order, std::string_view kindOfUnit) {
  return "It is void: " + order.Power + " has no " + std::string(kindOfUnit) +
         std::string(TypeName(order)) + " in " + order.Location + ".";
}

std::string ImpossibleRetreat(const model::Map& map, const OrderLine& order) {
  const std::string unit(TypeName(order));
  if (!orders::CanStandIn(map, order.UnitType, order.Target)) {
    return "It was disbanded: no " + unit + " can stand in " + order.Target + ".";
  }
  return "It was disbanded: no " + unit + " can move from " + order.Location + " to " +
         order.Target + ".";
}

std::string UnitText(const Resolution& resolution, int unit) {
  return orders::UnitText(resolution.UnitsBefore[unit]);
}

std::string RejectedRetreat(const model::GameState& after, const OrderLine& order) {
  if (order.Result == "syntax error") return "It was not understood.";
  if (order.Result == "no such unit") return MissingUnit(order, "dislodged ");
  if (order.Result == "impossible (standoff)") {
    return "It was disbanded: a standoff left " + order.Target + " empty.";
  }
  return ImpossibleRetreat(*after.Map, order);
}

}  // namespace

std::string ExplainRetreat(const model::GameState& after, const Resolution& resolution, int order) {
  const OrderLine& line = resolution.Orders[order];
  const Reason& reason = resolution.Reasons[order];
  if (!line.Active) return RejectedRetreat(after, line);
  switch (reason.Ruling) {
    case Ruling::BackToAttacker:
      return "It was disbanded: the attack that dislodged it came from " + line.Target + ".";
    case Ruling::PlaceTaken:
      return "It was disbanded: " + UnitText(resolution, reason.Blocker) + " stands in " +
             line.Target + ".";
    case Ruling::RetreatsCollide:
      return "It was disbanded: \"" + resolution.Orders[reason.Blocker].Text +
             "\" aims at the same place.";
    default:
      break;
  }
  if (line.Kind == "RETREAT") return "It retreated: " + line.Target + " was free.";
  return line.Result == "unordered" ? "It was disbanded: no order was given."
                                    : "It was disbanded as ordered.";
}

std::string ExplainAdjustment(const model::GameState& /*after*/, const Resolution& resolution,
                              int order) {
  const OrderLine& line = resolution.Orders[order];
  const std::string place = line.Location;
  if (line.Active) {
    return line.Kind == "BUILD" ? "It was built: " + place + " is a home centre, owned and empty."
                                : "It was removed as ordered.";
  }
  if (line.Result == "syntax error") return "It was not understood.";
  if (line.Result == "no such unit") return MissingUnit(line, "");
  if (line.Result == "not a home centre") {
    return "It was not built: " + place + " is no home centre of " + line.Power + ".";
  }
  if (line.Result == "centre not owned") {
    return "It was not built: " + place + " is not owned by " + line.Power + ".";
  }
  if (line.Result == "centre not empty1")
    return "It was not built: a unit stands in " + place + ".";
  if (line.Result == "impossible unit") {
    return "It was not built: no " + std::string(TypeName(line)) + " can stand in " + place + ".";
  }
  return "It clashed with \"" + resolution.Orders[resolution.Reasons[order].Blocker].Text +
         "\": both are for one place.";
}

}  // namespace orb::adjudication
