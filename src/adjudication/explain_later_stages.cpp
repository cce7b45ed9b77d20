#include "adjudication/explain_parts.h"
#include "model/counts.h"
#include "model/lookups.h"

namespace orb::adjudication {
namespace {

using orders::OrderKind;
using orders::OrderLine;
using orders::OrderResult;
using orders::OrderTable;

Explanation RejectedRetreat(const Resolution& resolution, const OrderLine& order) {
  if (order.Rejection == OrderResult::SyntaxError) return NotUnderstood(resolution, order);
  if (order.Rejection == OrderResult::NoSuchUnit) return NoSuchUnit(resolution, order);
  // A standoff is reported in place of an impossible move, so it is the one to explain.
  return {"It was disbanded", order.Result == OrderResult::Standoff
                                  ? "a standoff left " + NameOf(resolution, order.Target) + " empty"
                                  : NoWayText(*resolution.Map, order)};
}

std::string PlaceTakenText(const Resolution& resolution, int order) {
  const model::Unit& unit = resolution.UnitsBefore[resolution.Reasons[order].Blocker];
  const std::string text =
      model::UnitText(unit) + " stands in " + NameOf(resolution, resolution.Orders[order].Target);
  return unit.Status == model::Dislodged
             ? text + ", itself dislodged but still there when retreats are decided"
             : text;
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
                     std::string_view power) {
  // Adjustments change no owner: the centres are those that they began with.
  const int centres = model::CountPower(after, power).Centres;
  int units = 0;
  for (const model::Unit& unit : resolution.UnitsBefore)
    units += unit.Power == power ? 1 : 0;
  int built = 0;
  int removed = 0;
  const int end = FirstNotCarriedOut(resolution);
  for (int k = 1; k < end; ++k) {
    const OrderLine& order = resolution.Orders[k];
    if (order.Active && model::PowerName(order.Power) == power) {
      ++(order.Kind == OrderKind::Build ? built : removed);
    }
  }
  const std::string done = DoneText(built, removed);
  if (units == centres && done.empty()) return {};
  std::string text =
      std::string(power) + " had " + Counted(units, "unit") + " and " + Counted(centres, "centre");
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

Explanation CarriedOut(const Resolution& resolution, int order) {
  const OrderLine& line = resolution.Orders[order];
  if (order >= FirstNotCarriedOut(resolution)) {
    return {"It was not carried out",
            "the board holds " + Counted(model::UnitBound, "unit") + " at most"};
  }
  if (line.Kind != OrderKind::Build) return {"It was removed as ordered", {}};
  return {"It was built", NameOf(resolution, line.Location) + " is a home centre, owned and empty"};
}

Explanation NotBuilt(const Resolution& resolution, const OrderLine& order) {
  const std::string& place = NameOf(resolution, order.Location);
  const std::string verdict = "It was not built";
  switch (order.Result) {
    case OrderResult::NotHomeCentre:
      return {verdict, place + " is no home centre of " + PowerOf(order)};
    case OrderResult::CentreNotOwned:
      return {verdict, place + " is not owned by " + PowerOf(order)};
    case OrderResult::CentreNotEmpty:
      return {verdict,
              place + " is not empty" + UnitThere(resolution, order.Power, order.Location)};
    default:
      return {verdict, CannotStandText(*resolution.Map, order, order.Location)};
  }
}

Explanation Clashed(const OrderTable& table, const OrderLine& order, int other) {
  const bool builds = order.Kind == OrderKind::Build && table[other].Kind == OrderKind::Build;
  return {
      "It clashed with " + Quoted(table[other]),
      std::string("both are for one place, so neither was ") + (builds ? "built" : "carried out")};
}

}  // namespace

int FirstNotCarriedOut(const Resolution& resolution) {
  int units = resolution.UnitsBefore.Count();
  for (int k = 1; k <= resolution.Orders.Count(); ++k) {
    const OrderLine& order = resolution.Orders[k];
    if (!order.Active) continue;
    units += order.Kind == OrderKind::Build ? 1 : -1;
    if (units > model::UnitBound) return k;
  }
  return resolution.Orders.Count() + 1;
}

Explanation ExplainRetreat(const Resolution& resolution, int order) {
  const OrderLine& line = resolution.Orders[order];
  const Reason& reason = resolution.Reasons[order];
  const std::string disbanded = "It was disbanded";
  if (!line.Active) return RejectedRetreat(resolution, line);
  switch (reason.Ruling) {
    case Ruling::BackToAttacker:
      return {disbanded,
              "the attack that dislodged it came from " + NameOf(resolution, line.Target)};
    case Ruling::PlaceTaken:
      return {disbanded, PlaceTakenText(resolution, order)};
    case Ruling::RetreatsCollide:
      return {disbanded, Quoted(resolution.Orders[reason.Blocker]) +
                             " aims at the same place, so both were lost"};
    default:
      break;
  }
  if (line.Kind == OrderKind::Retreat) {
    return {"It retreated", NameOf(resolution, line.Target) + " was free"};
  }
  if (line.Supplied) return {disbanded, "no order was given"};
  return {"It was disbanded as ordered", {}};
}

Explanation ExplainAdjustment(const model::GameState& after, const Resolution& resolution,
                              int order) {
  if (order == 0) return {CountsText(after, resolution), {}};
  const OrderLine& line = resolution.Orders[order];
  if (line.Active) return CarriedOut(resolution, order);
  switch (line.Rejection) {
    case OrderResult::SyntaxError:
      return NotUnderstood(resolution, line);
    case OrderResult::NoSuchUnit:
      return NoSuchUnit(resolution, line);
    case OrderResult::Clash:
      return Clashed(resolution.Orders, line, resolution.Reasons[order].Blocker);
    default:
      return NotBuilt(resolution, line);
  }
}

}  // namespace orb::adjudication
