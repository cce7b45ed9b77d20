#include "session/comparison.h"

#include "adjudication/outcomes.h"
#include "adjudication/possible_orders.h"
#include "model/errors.h"
#include "model/lookups.h"

#include <bitset>

namespace orb::session {
namespace {

using adjudication::Resolution;
using model::GameState;

/// What one stage came to by some rules.
struct Course {
  session::Rules Rules;
  const GameState& After;
  const Resolution& Result;
  std::vector<orders::OrderOutcome> Outcomes;
};

using Places = std::bitset<model::ProvinceBound + 1>;

/// Where a dislodged unit may retreat to.
Places RetreatPlaces(const GameState& game, const model::Unit& unit) {
  Places places;
  for (int row = 1; row <= game.Map->Provinces.Count(); ++row)
    places.set(static_cast<std::size_t>(row), adjudication::MayRetreatTo(game, unit, row));
  return places;
}

/// Whether the unit of that row was dislodged in the moves in both courses or in none, with the
/// same places to go to.
bool SharesItsFate(const Course& a, const Course& b, int unit) {
  if (unit == 0 || a.Result.Stage != model::Stage::Moves) return true;
  const model::Unit& here = a.After.Units[unit];
  const model::Unit& there = b.After.Units[unit];
  if (here.Status != there.Status) return false;
  return here.Status != model::Dislodged ||
         RetreatPlaces(a.After, here) == RetreatPlaces(b.After, there);
}

bool Succeeded(const Course& course, int order) {
  return course.Outcomes[static_cast<std::size_t>(order - 1)].Outcome == orders::Outcome::Succeeded;
}

/// The order of the other course that is the same one: in the same row where somebody wrote it, for
/// the same unit where it was supplied. 0: none.
int SameOrder(const Resolution& here, int order, const Resolution& there) {
  const orders::OrderLine& line = here.Orders[order];
  if (!line.Supplied) return order;
  for (int k = 1; k <= there.Orders.Count(); ++k) {
    if (there.Orders[k].Supplied && there.Orders[k].UnitIndex == line.UnitIndex) return k;
  }
  return 0;
}

/// The line of the report that tells of the order, or of its unit; 0: none.
int LineOf(const Course& course, int order) {
  for (const adjudication::ReportEntry& entry : course.Result.Entries) {
    if (entry.Order == order) return entry.Line;
  }
  const int unit = course.Result.Orders[order].UnitIndex;
  if (unit == 0) return 0;
  const std::string name = model::UnitText(course.Result.UnitsBefore[unit]);
  int line = 0;
  for (int i = 1; i <= course.After.ReportLines.Count(); ++i) {
    if (course.After.ReportLines[i].find(name) <= 2) line = i;
  }
  return line;
}

/// Where a unit that is dislodged in both courses may go in the other: the sentences about its
/// order may be the same.
std::string OtherRetreats(const Course& here, const Course& there, int unit) {
  if (unit == 0 || here.Result.Stage != model::Stage::Moves) return {};
  const model::Unit& lost = there.After.Units[unit];
  if (lost.Status != model::Dislodged || here.After.Units[unit].Status != model::Dislodged)
    return {};
  const Places places = RetreatPlaces(there.After, lost);
  if (places == RetreatPlaces(here.After, here.After.Units[unit])) return {};
  if (places.none()) return " It may not retreat.";
  std::string text;
  for (int row = 1; row <= there.After.Map->Provinces.Count(); ++row) {
    if (!places.test(static_cast<std::size_t>(row))) continue;
    text.append(text.empty() ? " It may retreat to " : ", ");
    text.append(model::LocationName(*there.After.Map, row));
  }
  return text.append(".");
}

std::string ThereText(Rules there, const std::string& sentence) {
  return "By " + std::string(RulesName(there)) + ": " + sentence;
}

/// The order of the other course whose outcome is held against this one's; 0: none.
int Counterpart(const Resolution& here, int order, const Resolution& there) {
  const int same = SameOrder(here, order, there);
  const bool standsForUnit = same == 0 && here.Stage == model::Stage::Moves;
  return standsForUnit ? there.OrdersOfUnits[here.Orders[order].UnitIndex] : same;
}

bool ComesOutTheSame(const Course& here, int order, const Course& there, int other) {
  if (!SharesItsFate(here, there, here.Result.Orders[order].UnitIndex)) return false;
  // A hold that was supplied to a unit whose own line is read otherwise: that line tells of it.
  const bool sameOrder = SameOrder(here.Result, order, there.Result) != 0;
  return !sameOrder || Succeeded(here, order) == Succeeded(there, other);
}

/// The orders of one course that came out otherwise in the other.
void AddDifferent(const Course& here, const Course& there, Differences& differences) {
  for (int k = 1; k <= here.Result.Orders.Count(); ++k) {
    const int other = Counterpart(here.Result, k, there.Result);
    if (other == 0 || ComesOutTheSame(here, k, there, other)) continue;
    differences.push_back(
        {k, LineOf(here, k), here.Result.Orders[k].Text,
         Reason(here.Rules, here.After, here.Result, k),
         ThereText(there.Rules, Reason(there.Rules, there.After, there.Result, other)) +
             OtherRetreats(here, there, here.Result.Orders[k].UnitIndex)});
  }
}

/// Removals that nobody named and only the other rules choose. They are told at the heading.
void AddChosenRemovals(const Course& here, const Course& there, Differences& differences) {
  if (here.Result.Stage != model::Stage::Adjustments) return;
  for (int k = 1; k <= there.Result.Orders.Count(); ++k) {
    if (!there.Result.Orders[k].Supplied) continue;
    differences.push_back(
        {0,
         LineOf(here, 0),
         there.Result.Orders[k].Text,
         {},
         ThereText(there.Rules, Reason(there.Rules, there.After, there.Result, k))});
  }
}

}  // namespace

Differences Compare(Rules rules, const GameState& before, const GameState& after,
                    const Resolution& resolution) {
  const Rules others = TheOther(rules);
  GameState otherwise = before;
  model::Consent messages;
  Resolution other;
  try {
    other = ResolveStage(others, otherwise, messages);
  } catch (const model::FatalError& error) {
    return {{0, 0, {}, {}, ThereText(others, error.what())}};
  }
  if (!other.Completed) {
    const std::string error = messages.Shown.empty() ? "" : messages.Shown.back();
    return {{0, 0, {}, {}, ThereText(others, "The stage is not resolved: " + error)}};
  }
  const Course here{rules, after, resolution, adjudication::Outcomes(resolution)};
  const Course there{others, otherwise, other, adjudication::Outcomes(other)};
  Differences differences;
  AddDifferent(here, there, differences);
  AddChosenRemovals(here, there, differences);
  return differences;
}

std::string DifferencesText(int count, Rules rules) {
  const std::string number = count == 0   ? "No order"
                             : count == 1 ? "1 order"
                                          : std::to_string(count) + " orders";
  return number + " came out otherwise than by " + std::string(RulesName(TheOther(rules)));
}

}  // namespace orb::session
