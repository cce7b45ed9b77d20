#include "adjudication/list_check.h"

#include "adjudication/adjustments.h"
#include "adjudication/explain.h"
#include "adjudication/explain_parts.h"
#include "adjudication/moves.h"
#include "adjudication/retreats.h"
#include "adjudication/stage_steps.h"
#include "model/counts.h"
#include "model/lookups.h"
#include "orders/order_list.h"
#include "orders/parser.h"

#include <algorithm>

namespace orb::adjudication {
namespace {

using model::GameState;
using orders::OrderLine;
using orders::OrderResult;
using orders::OrderTable;

/// Explanations tell what happened and why; before a resolution only the why is true.
std::string WhyOf(const GameState& game, const Resolution& resolution, int k) {
  return ExplainOrder(game, resolution, k).Why;
}

std::string RejectionText(const GameState& game, const Resolution& resolution, int k) {
  const OrderLine& order = resolution.Orders[k];
  if (order.Result == OrderResult::Clash && order.Rejection == OrderResult::Clash) {
    return "clash with " + resolution.Orders[resolution.Reasons[k].Blocker].Text;
  }
  // The adjustments' own checks look at faulty orders too and find something else.
  const OrderResult word =
      order.Rejection == OrderResult::SyntaxError ? order.Rejection : order.Result;
  return std::string(ResultWord(word)) + ": " + WhyOf(game, resolution, k);
}

/// A later order for the same unit, or 0.
int OrderedAgain(const OrderTable& table, int k) {
  for (int later = k + 1; later <= table.Count(); ++later) {
    if (table[k].UnitIndex != 0 && table[later].UnitIndex == table[k].UnitIndex) return later;
  }
  return 0;
}

LineProblems ProblemsOf(const GameState& game, const Resolution& resolution, int k) {
  LineProblems problems;
  const Ruling ruling = resolution.Reasons[k].Ruling;
  if (!resolution.Orders[k].Active) {
    problems.push_back(RejectionText(game, resolution, k));
  } else if (ruling == Ruling::PlaceTaken) {
    problems.push_back("occupied: " + WhyOf(game, resolution, k));
  } else if (ruling == Ruling::BackToAttacker) {
    problems.push_back("impossible: " + WhyOf(game, resolution, k));
  }
  if (const int later = OrderedAgain(resolution.Orders, k); later != 0) {
    problems.push_back("ordered again: " + resolution.Orders[later].Text);
  }
  return problems;
}

bool NeedsOrder(const GameState& game, const model::Unit& unit) {
  return game.Stage == model::Stage::Moves ||
         (game.Stage == model::Stage::Retreats && unit.Status == model::Dislodged);
}

/// For each unit that needs an order the first of these lines that gives it one, counted from 1;
/// past the last line for none.
std::vector<int> FirstOrders(const GameState& game, std::vector<std::string> lines) {
  OrderTable table;
  orders::SetOrderTexts(std::move(lines), table);
  orders::ParseOrders(*game.Map, game.Stage, table);
  const orders::Pieces pieces = orders::PiecesOf(game);
  std::vector<int> firsts;
  for (int u = 1; u <= game.Units.Count(); ++u) {
    if (!NeedsOrder(game, game.Units[u])) continue;
    int k = 1;
    while (k <= table.Count() && orders::OrderedPiece(table[k]) != pieces[u])
      ++k;
    firsts.push_back(k);
  }
  return firsts;
}

/// How many lines from the first on the order table can take, together with an order for each unit
/// that they leave without one.
std::size_t LinesWithRoom(const GameState& game, const std::vector<std::string>& list) {
  constexpr int bound = orders::OrderBound;
  int count = std::min(static_cast<int>(list.size()), bound);
  if (static_cast<int>(list.size()) + game.Units.Count() <= bound) return list.size();
  const std::vector<int> firsts = FirstOrders(game, {list.begin(), list.begin() + count});
  const auto unordered = [&] {
    return std::ranges::count_if(firsts, [&](int first) { return first > count; });
  };
  while (count + unordered() > bound)
    --count;
  return static_cast<std::size_t>(count);
}

/// Runs the checks of the resolution itself, so that a mark never says anything else. Of retreats
/// it also finds those that lead back to the attacker or to a unit, which the resolution decides.
Resolution CheckLines(const GameState& game, std::vector<std::string> lines) {
  // Lets every check go on to its end.
  model::Consent messages;
  Resolution resolution;
  if (game.Stage == model::Stage::Moves) {
    resolution = StartResolution(model::Stage::Moves, game, std::move(lines));
    CheckOrders(resolution, messages);
  } else if (game.Stage == model::Stage::Retreats) {
    resolution = StartResolution(model::Stage::Retreats, game, std::move(lines));
    CheckRetreats(game, resolution, messages);
    ResolveRetreatStandoffs(game, resolution);
  } else {
    resolution = StartResolution(model::Stage::Adjustments, game, std::move(lines));
    CheckAdjustments(game, resolution, messages);
  }
  return resolution;
}

}  // namespace

Resolution CheckedOrders(const GameState& game) {
  if (!HasOrders(game.Stage)) ThrowNothingToResolve(game);
  return CheckLines(game, orders::StageList(game));
}

std::vector<PowerProblem> CountProblems(const GameState& game, const OrderTable& table) {
  std::vector<PowerProblem> problems;
  for (const model::Country& country : game.Countries) {
    const model::PowerCount count = model::CountPower(game, country.Abbreviation);
    const int units = count.Units + ChangeOf(table, model::FindCountry(country.Abbreviation));
    if (units == count.Centres) continue;
    problems.push_back(
        {country.Abbreviation, (units > count.Centres ? "too many units: " : "not enough units: ") +
                                   std::to_string(units) + " after these orders, with " +
                                   Counted(count.Centres, "centre")});
  }
  return problems;
}

ListCheck CheckList(const GameState& game) {
  ListCheck check;
  if (!HasOrders(game.Stage)) return check;
  const std::vector<std::string>& list = orders::StageList(game);
  const std::size_t room = LinesWithRoom(game, list);
  const Resolution resolution =
      CheckLines(game, {list.begin(), list.begin() + static_cast<std::ptrdiff_t>(room)});
  for (int k = 1; k <= resolution.Orders.Count(); ++k) {
    // Behind the lines, the checks have added an order for each unit that had none.
    if (k <= static_cast<int>(room)) {
      check.Lines.push_back(ProblemsOf(game, resolution, k));
    } else {
      check.Unordered.push_back(UnitName(resolution, resolution.Orders[k]));
    }
  }
  check.Lines.resize(list.size(), {orders::TooManyOrders()});
  if (game.Stage == model::Stage::Adjustments)
    check.Powers = CountProblems(game, resolution.Orders);
  return check;
}

}  // namespace orb::adjudication
