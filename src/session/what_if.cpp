#include "session/what_if.h"

#include "adjudication/outcomes.h"
#include "adjudication/possible_orders.h"
#include "model/errors.h"
#include "model/lookups.h"
#include "orders/order_list.h"
#include "orders/parser.h"
#include "text/strings.h"

#include <algorithm>
#include <optional>
#include <tuple>

namespace orb::session {
namespace {

using adjudication::Resolution;
using model::GameState;

/// What became of the units in one resolution of the moves.
struct Course {
  GameState After;
  Resolution Result;
  std::vector<orders::OrderOutcome> Outcomes;

  /// The order that stands for the unit of that index succeeded.
  bool Succeeded(int unit) const {
    const int row = Result.OrdersOfUnits[unit];
    return Outcomes[static_cast<std::size_t>(row - 1)].Outcome == orders::Outcome::Succeeded;
  }
  bool IsDislodged(int unit) const { return After.Units[unit].Status == model::Dislodged; }
};

std::optional<Course> Run(const Situation& before, const std::vector<std::string>& list) {
  Course course;
  course.After = before.Game;
  course.After.OrdersList = list;
  model::Consent messages;
  try {
    course.Result = ResolveStage(before.Rules, course.After, messages);
  } catch (const model::FatalError&) {
    return std::nullopt;  // there is no room for so many orders
  }
  course.Outcomes = adjudication::Outcomes(course.Result);
  return course;
}

/// An order to try in place of a unit's own.
struct Candidate {
  int Unit = 0;
  std::string Line;
  orders::OrderLine Order;
};

using Candidates = std::vector<Candidate>;

/// Searches the changes after which one order comes out otherwise.
class Search {
 public:
  explicit Search(const Question& question)
      : question_(question),
        list_(question.Before.Game.OrdersList),
        possible_(question.Before.Game),
        base_(*Run(question.Before, list_)),
        unit_(base_.Result.Orders[question.Row].UnitIndex) {}

  std::string_view PowerOf(int unit) const { return question_.Before.Game.Units[unit].Power; }

  /// What the unit could do instead.
  Candidates CandidatesOf(int unit) const {
    Candidates candidates;
    const std::string_view own = OrderText(unit);
    for (std::string& line : possible_.OfUnit(unit)) {
      if (line == own) continue;
      orders::OrderLine order =
          orders::ParseLine(*question_.Before.Game.Map, model::Stage::Moves, line);
      candidates.push_back({unit, std::move(line), std::move(order)});
    }
    return candidates;
  }

  /// Whether all changes make a difference: a support or convoy that fits no order is like holding.
  bool AllFit(const Candidates& changes) const {
    return std::ranges::all_of(
        changes, [&](const Candidate& change) { return Fits(change.Order, changes); });
  }

  /// Adds the alternative that these orders make, if they change the order in question.
  void AddIfItDoes(const Candidates& changes, std::vector<Alternative>& found) const {
    if (!AllFit(changes)) return;
    std::vector<std::string> list = ListWith(changes);
    const std::optional<Course> course = Run(question_.Before, list);
    if (!course || !ChangesTheOrder(*course, changes)) return;
    Alternative& alternative = found.emplace_back();
    for (const Candidate& change : changes)
      alternative.Orders.push_back(change.Line);
    alternative.List = std::move(list);
    alternative.Power = PowerOf(changes.front().Unit);
    alternative.Sentence = Reason(question_.Before.Rules, course->After, course->Result,
                                  course->Result.OrdersOfUnits[unit_]);
    alternative.OtherChanges = OtherChanges(*course, changes);
  }

  /// One's own power first, then by their table; those that change least else first.
  void Sort(std::vector<Alternative>& alternatives) const {
    const auto rank = [&](const Alternative& alternative) {
      return std::tuple(alternative.Power != question_.Power, model::FindCountry(alternative.Power),
                        alternative.OtherChanges);
    };
    std::ranges::stable_sort(alternatives, {}, rank);
  }

 private:
  /// The list with the changes in place of all lines for their units, however these name them.
  std::vector<std::string> ListWith(const Candidates& changes) const {
    const auto replaces = [&](std::size_t row) {
      const int unit = base_.Result.Orders[static_cast<int>(row) + 1].UnitIndex;
      const std::string_view line = text::Trim(list_[row]);
      return std::ranges::any_of(changes, [&](const Candidate& change) {
        return change.Unit == unit || line.starts_with(orders::UnitPart(change.Line));
      });
    };
    std::vector<std::string> list;
    for (std::size_t row = 0; row < list_.size(); ++row) {
      if (!replaces(row)) list.push_back(list_[row]);
    }
    for (const Candidate& change : changes)
      list.push_back(change.Line);
    return list;
  }

  std::string_view OrderText(int unit) const {
    return base_.Result.Orders[base_.Result.OrdersOfUnits[unit]].Text;
  }

  /// What the unit is ordered when these changes are made.
  const orders::OrderLine& OrderOf(int unit, const Candidates& changes) const {
    for (const Candidate& change : changes) {
      if (change.Unit == unit) return change.Order;
    }
    return base_.Result.Orders[base_.Result.OrdersOfUnits[unit]];
  }

  /// Whether a support or convoy fits what its unit is ordered to do.
  bool Fits(const orders::OrderLine& order, const Candidates& changes) const {
    if (!orders::IsSupport(order) && !orders::IsConvoy(order)) return true;
    for (int u = 1; u <= base_.Result.Pieces.Count(); ++u) {
      if (base_.Result.Pieces[u] != orders::OtherPiece(order)) continue;
      const orders::OrderLine& other = OrderOf(u, changes);
      if (order.Kind2 == orders::OrderKind::Hold)
        return !orders::IsMove(other) || other.Rejection != orders::OrderResult::None;
      return orders::IsMove(other) && order.Target2 == other.Target;
    }
    return false;
  }

  bool IsChanged(int unit, const Candidates& changes) const {
    return std::ranges::any_of(changes,
                               [&](const Candidate& change) { return change.Unit == unit; });
  }

  /// Of a unit that is itself told something else only its dislodgement can be asked about.
  bool ChangesTheOrder(const Course& course, const Candidates& changes) const {
    if (base_.IsDislodged(unit_) && !course.IsDislodged(unit_)) return true;
    return !IsChanged(unit_, changes) && course.Succeeded(unit_) != base_.Succeeded(unit_);
  }

  int OtherChanges(const Course& course, const Candidates& changes) const {
    int count = 0;
    for (int u = 1; u <= base_.Result.Pieces.Count(); ++u) {
      if (u == unit_ || IsChanged(u, changes)) continue;
      const bool same = course.Succeeded(u) == base_.Succeeded(u) &&
                        course.IsDislodged(u) == base_.IsDislodged(u);
      count += same ? 0 : 1;
    }
    return count;
  }

  const Question& question_;
  const std::vector<std::string>& list_;
  adjudication::PossibleOrders possible_;
  Course base_;
  int unit_;
};

/// The row of the order in the resolution; 0: it is not there.
int FindOrder(const Resolution& resolution, std::string_view order) {
  for (int k = 1; k <= resolution.Orders.Count(); ++k) {
    if (resolution.Orders[k].Text == order && resolution.Orders[k].UnitIndex != 0) return k;
  }
  for (int u = 1; u <= resolution.Pieces.Count(); ++u) {
    if (model::UnitText(resolution.UnitsBefore[u]) == order) return resolution.OrdersOfUnits[u];
  }
  return 0;
}

}  // namespace

Question Ask(const Situation& before, std::string_view order) {
  if (before.Game.Stage != model::Stage::Moves) {
    throw model::FatalError("What would have changed an order can only be told of moves.");
  }
  const std::optional<Course> course = Run(before, before.Game.OrdersList);
  if (!course) throw model::FatalError("There are too many orders to be resolved.");
  const int row = FindOrder(course->Result, text::Trim(order));
  if (row == 0 || course->Result.Orders[row].UnitIndex == 0) {
    throw model::FatalError("There is no order \"" + std::string(order) + "\" of any unit.");
  }
  return {before, course->Result.Orders[row].Text,
          Reason(before.Rules, course->After, course->Result, row), row,
          before.Game.Units[course->Result.Orders[row].UnitIndex].Power};
}

std::vector<Alternative> SingleChanges(const Question& question) {
  const Search search(question);
  std::vector<Alternative> found;
  for (int u = 1; u <= question.Before.Game.Units.Count(); ++u) {
    for (const Candidate& candidate : search.CandidatesOf(u))
      search.AddIfItDoes({candidate}, found);
  }
  search.Sort(found);
  return found;
}

std::vector<Alternative> PairsOfChanges(const Question& question, std::string_view power,
                                        const Progress& goOn) {
  const Search search(question);
  Candidates candidates;
  for (int u = 1; u <= question.Before.Game.Units.Count(); ++u) {
    if (search.PowerOf(u) != power) continue;
    for (Candidate& candidate : search.CandidatesOf(u)) {
      std::vector<Alternative> alone;
      search.AddIfItDoes({candidate}, alone);
      if (alone.empty()) candidates.push_back(std::move(candidate));
    }
  }
  std::vector<Alternative> found;
  const int all = static_cast<int>(candidates.size());
  for (int i = 0; i < all && goOn(i, all); ++i) {
    for (int j = i + 1; j < all; ++j) {
      const Candidate& first = candidates[static_cast<std::size_t>(i)];
      const Candidate& second = candidates[static_cast<std::size_t>(j)];
      if (first.Unit != second.Unit) search.AddIfItDoes({first, second}, found);
    }
  }
  search.Sort(found);
  return found;
}

}  // namespace orb::session
