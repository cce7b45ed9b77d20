#include "adjudication/adjustments.h"
#include "adjudication/explain.h"
#include "adjudication/explain_parts.h"
#include "model/counts.h"
#include "model/lookups.h"

namespace orb::adjudication {
namespace {

using orders::OrderLine;
using orders::OrderTable;

std::string RejectedRetreat(const model::Map& map, const Resolution& resolution,
                            const OrderLine& order) {
  if (const auto fault = ExplainSyntax(map, order, resolution.Stage); !fault.empty()) {
    return NotUnderstood(fault);
  }
  if (order.Result == "no such unit") return NoSuchUnit(resolution, order);
  return "It was disbanded: " + (order.Result == "impossible (standoff)"
                                     ? "a standoff left " + order.Target + " empty"
                                     : NoWayText(map, order));
}

std::string PlaceTakenText(const Resolution& resolution, int order) {
  const model::Unit& unit = resolution.UnitsBefore[resolution.Reasons[order].Blocker];
  const std::string text = "It was disbanded: " + model::UnitText(unit) + " stands in " +
                           resolution.Orders[order].Target;
  return unit.Status == model::Dislodged
             ? text + ", itself dislodged but still there when retreats are decided"
             : text;
}

std::string RetreatText(const model::Map& map, const Resolution& resolution, int order) {
  const OrderLine& line = resolution.Orders[order];
  const Reason& reason = resolution.Reasons[order];
  if (!line.Active) return RejectedRetreat(map, resolution, line);
  switch (reason.Ruling) {
    case Ruling::BackToAttacker:
      return "It was disbanded: the attack that dislodged it came from " + line.Target;
    case Ruling::PlaceTaken:
      return PlaceTakenText(resolution, order);
    case Ruling::RetreatsCollide:
      return "It was disbanded: " + Quoted(resolution.Orders[reason.Blocker]) +
             " aims at the same place, so both were lost";
    default:
      break;
  }
  if (line.Kind == "RETREAT") return "It retreated: " + line.Target + " was free";
  return line.Result == "unordered" ? "It was disbanded: no order was given"
                                    : "It was disbanded as ordered";
}

std::string DoneText(int built, int removed) {
  std::string text;
  if (built != 0) text = "built " + std::to_string(built);
  if (removed != 0) text += (built == 0 ? "" : " and ") + ("removed " + std::to_string(removed));
  return text;
}

/// What the power had when the adjustments began, what it had to do and what it did; empty when
/// that is nothing.
std::string CountsOf(const model::GameState& after, const Resolution& resolution,
                     const std::string& power) {
  const int centres = model::CountPower(after, power).Centres;
  int units = 0;
  for (const model::Unit& unit : resolution.UnitsBefore)
    units += unit.Power == power ? 1 : 0;
  int built = 0;
  int removed = 0;
  const int end = FirstNotCarriedOut(resolution);
  for (int k = 1; k < end; ++k) {
    const OrderLine& order = resolution.Orders[k];
    if (order.Active && order.Power == power) ++(order.Kind == "BUILD" ? built : removed);
  }
  const std::string done = DoneText(built, removed);
  if (units == centres && done.empty()) return {};
  std::string text =
      power + " had " + Counted(units, "unit") + " and " + Counted(centres, "centre");
  if (units == centres) return text + " and " + done;
  text += centres > units ? ": it may build " + std::to_string(centres - units)
                          : ": it must remove " + std::to_string(units - centres);
  return text + " and " + (done.empty() ? centres > units ? "built none" : "removed none" : done);
}

std::string CountsText(const model::GameState& after, const Resolution& resolution) {
  std::string sentence;
  for (const model::Country& country : after.Countries) {
    const std::string counts = CountsOf(after, resolution, country.Abbreviation);
    if (!counts.empty()) sentence += (sentence.empty() ? "" : "; ") + counts;
  }
  return sentence.empty() ? "No power had to act: each had as many units as centres" : sentence;
}

std::string CarriedOutText(const Resolution& resolution, int order) {
  const OrderLine& line = resolution.Orders[order];
  if (order >= FirstNotCarriedOut(resolution)) {
    return "It was not carried out: the board holds " + Counted(model::UnitBound, "unit") +
           " at most";
  }
  return line.Kind == "BUILD"
             ? "It was built: " + line.Location + " is a home centre, owned and empty"
             : "It was removed as ordered";
}

std::string NotBuiltText(const model::Map& map, const Resolution& resolution,
                         const OrderLine& order) {
  const std::string& place = order.Location;
  std::string verdict = "It was not built: ";
  if (order.Result == "not a home centre") {
    return verdict + place + " is no home centre of " + order.Power;
  }
  if (order.Result == "centre not owned")
    return verdict + place + " is not owned by " + order.Power;
  if (order.Result == "centre not empty1") {
    return verdict + place + " is not empty" + UnitThere(resolution, order.Power, place);
  }
  return verdict + CannotStandText(map, order, place);
}

std::string ClashText(const OrderTable& table, const OrderLine& order, int other) {
  const bool builds = order.Kind == "BUILD" && table[other].Kind == "BUILD";
  return "It clashed with " + Quoted(table[other]) + ": both are for one place, so neither was " +
         (builds ? "built" : "carried out");
}

std::string AdjustmentText(const model::GameState& after, const Resolution& resolution, int order) {
  if (order == 0) return CountsText(after, resolution);
  const OrderLine& line = resolution.Orders[order];
  if (line.Active) return CarriedOutText(resolution, order);
  if (const auto fault = ExplainSyntax(*after.Map, line, resolution.Stage); !fault.empty()) {
    return NotUnderstood(fault);
  }
  if (line.Result == "no such unit") return NoSuchUnit(resolution, line);
  const int other = resolution.Reasons[order].Blocker;
  return line.Result == "clash" ? ClashText(resolution.Orders, line, other)
                                : NotBuiltText(*after.Map, resolution, line);
}

}  // namespace

int FirstNotCarriedOut(const Resolution& resolution) {
  int units = resolution.UnitsBefore.Count();
  for (int k = 1; k <= resolution.Orders.Count(); ++k) {
    const OrderLine& order = resolution.Orders[k];
    if (!order.Active) continue;
    units += order.Kind == "BUILD" ? 1 : -1;
    if (units > model::UnitBound) return k;
  }
  return resolution.Orders.Count() + 1;
}

std::string ExplainRetreat(const model::GameState& after, const Resolution& resolution, int order) {
  return RetreatText(*after.Map, resolution, order) + ".";
}

std::string ExplainAdjustment(const model::GameState& after, const Resolution& resolution,
                              int order) {
  return AdjustmentText(after, resolution, order) + ".";
}

}  // namespace orb::adjudication
