#include "cli/problems.h"

#include "adjudication/adjustments.h"
#include "adjudication/explain.h"
#include "adjudication/moves.h"
#include "adjudication/retreats.h"
#include "adjudication/stages.h"
#include "model/errors.h"
#include "orders/lookups.h"
#include "orders/parser.h"

namespace orb::cli {
namespace {

using adjudication::Resolution;
using adjudication::ResolvedStage;
using adjudication::Ruling;
using model::GameState;
using orders::OrderLine;
using orders::OrderTable;

/// Lets every check go on to its end.
class YesToEverything : public model::Messages {
 public:
  bool Warn(const std::string& /*text*/) override { return true; }
  model::Answer Ask(const std::string& /*text*/) override { return model::Answer::YesToAll; }
  void Show(const std::string& /*text*/, model::Icon /*icon*/) override {}
};

/// Explanations read "What happened: why."; before a resolution only the why is true.
std::string WhyOf(const std::string& sentence) {
  const std::size_t colon = sentence.find(": ");
  if (colon == std::string::npos) return sentence;
  const std::size_t start = colon + 2;
  return sentence.substr(start, sentence.size() - start - (sentence.ends_with('.') ? 1 : 0));
}

std::string RejectionText(const GameState& game, const Resolution& resolution, int k) {
  const OrderLine& order = resolution.Orders[k];
  const std::string& word = order.Result;
  if (resolution.Stage != ResolvedStage::Moves) {
    // The adjustments' own checks look at such orders too and overwrite the word.
    const std::string fault = adjudication::ExplainSyntax(*game.Map, order, resolution.Stage);
    if (!fault.empty()) return "syntax error: " + fault;
  }
  if (word == "clash") {
    return "clash with " + resolution.Orders[resolution.Reasons[k].Blocker].Text;
  }
  return word + ": " + WhyOf(adjudication::ExplainOrder(game, resolution, k));
}

/// A later order for the same unit, or 0.
int OrderedAgain(const OrderTable& table, int k) {
  for (int later = k + 1; later <= table.Count(); ++later) {
    if (table[k].UnitIndex != 0 && table[later].UnitIndex == table[k].UnitIndex) return later;
  }
  return 0;
}

void AddOrderProblems(const GameState& game, const Resolution& resolution, int listed,
                      std::vector<Problem>& problems) {
  for (int k = 1; k <= resolution.Orders.Count(); ++k) {
    const OrderLine& order = resolution.Orders[k];
    const Ruling ruling = resolution.Reasons[k].Ruling;
    if (k > listed) {
      problems.push_back({adjudication::UnitName(order), "unordered"});
    } else if (!order.Active) {
      problems.push_back({order.Text, RejectionText(game, resolution, k)});
    } else if (ruling == Ruling::PlaceTaken) {
      problems.push_back(
          {order.Text, "occupied: " + WhyOf(adjudication::ExplainOrder(game, resolution, k))});
    } else if (ruling == Ruling::BackToAttacker) {
      problems.push_back(
          {order.Text, "impossible: " + WhyOf(adjudication::ExplainOrder(game, resolution, k))});
    }
    if (const int later = OrderedAgain(resolution.Orders, k); later != 0) {
      problems.push_back({order.Text, "ordered again: " + resolution.Orders[later].Text});
    }
  }
}

void AddCountProblems(const GameState& game, const OrderTable& table,
                      std::vector<Problem>& problems) {
  for (const model::Country& country : game.Countries) {
    const auto count = adjudication::CountPower(game, country.Abbreviation);
    int units = count.Units;
    for (const OrderLine& order : table) {
      if (order.Active && order.Power == country.Abbreviation) {
        units += order.Kind == "BUILD" ? 1 : -1;
      }
    }
    if (units == count.Centres) continue;
    problems.push_back(
        {country.Abbreviation, (units > count.Centres ? "too many units: " : "not enough units: ") +
                                   std::to_string(units) + " after these orders, with " +
                                   std::to_string(count.Centres) + " centres"});
  }
}

}  // namespace

std::vector<Problem> FindProblems(const GameState& game) {
  GameState tried = game;
  YesToEverything messages;
  Resolution resolution;
  std::size_t listed = 0;
  if (game.Stage == "moves") {
    listed = game.OrdersList.size();
    resolution = adjudication::StartResolution(ResolvedStage::Moves, tried, tried.OrdersList);
    adjudication::CheckOrders(tried, resolution, messages);
  } else if (game.Stage == "retreats") {
    listed = game.RetreatsList.size();
    resolution = adjudication::ResolveRetreats(tried, messages);
  } else if (game.Stage == "adjustments") {
    listed = game.AdjustmentsList.size();
    resolution =
        adjudication::StartResolution(ResolvedStage::Adjustments, tried, tried.AdjustmentsList);
    adjudication::CheckAdjustments(tried, resolution, messages);
  } else {
    throw model::FatalError("There are no orders to check in the stage \"" + game.Stage + "\".");
  }
  std::vector<Problem> problems;
  AddOrderProblems(game, resolution, static_cast<int>(listed), problems);
  if (game.Stage == "adjustments") AddCountProblems(game, resolution.Orders, problems);
  return problems;
}

}  // namespace orb::cli
