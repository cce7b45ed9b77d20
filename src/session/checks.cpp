#include "adjudication/list_check.h"
#include "model/errors.h"
#include "model/lookups.h"
#include "orders/order_list.h"
#include "session/queries.h"
#include "session/rules.h"

#include <algorithm>

namespace orb::session {
namespace {

using adjudication::Resolution;
using model::GameState;
using orders::OrderLine;
using orders::OrderResult;

/// The stage's list as the rules read it: what each line means, and what was rejected before
/// anything was decided.
struct Reading {
  session::Rules Rules;
  GameState After;  ///< what sentences about the orders are told of
  Resolution Result;

  /// Lines that the others say again, and supports that were cut, were not refused.
  bool Refuses(int k) const {
    const OrderResult rejection = Result.Orders[k].Rejection;
    return rejection != OrderResult::None && rejection != OrderResult::Cut &&
           rejection != OrderResult::Repeated;
  }

  std::string Sentence(int k) const { return Reason(Rules, After, Result, k); }
};

Reading Read(Rules rules, const GameState& game) {
  Reading reading{rules, game, {}};
  model::Consent messages;
  reading.Result = rules == Rules::Orb ? adjudication::CheckedOrders(game)
                                       : ResolveStage(rules, reading.After, messages);
  return reading;
}

/// What a line is taken to mean that the rules in force refuse.
std::string MeaningText(const Reading& here, const Reading& there, int k) {
  const OrderLine& own = here.Result.Orders[k];
  const OrderLine& other = there.Result.Orders[k];
  const model::Map& map = *there.Result.Map;
  std::string text;
  if (other.Location != own.Location) text = "it is for " + orders::UnitName(map, other);
  if (other.Target != own.Target && orders::IsMove(other)) {
    text +=
        (text.empty() ? "it goes to " : " and goes to ") + model::LocationName(map, other.Target);
  }
  return text.empty() ? "it is possible" : text;
}

/// How the other rules read the line; empty where they read it as those in force do.
std::string OtherReading(const Reading& here, const Reading& there, int k) {
  const std::string by = "By " + std::string(RulesName(there.Rules)) + ": ";
  if (here.Refuses(k) && !there.Refuses(k)) return by + MeaningText(here, there, k);
  const bool repeated = there.Result.Orders[k].Rejection == OrderResult::Repeated;
  if (!here.Refuses(k) && (there.Refuses(k) || repeated)) return by + there.Sentence(k);
  return {};
}

/// Retreats that are decided as soon as they are read.
bool IsLost(const Resolution& resolution, int k) {
  const adjudication::Ruling ruling = resolution.Reasons[k].Ruling;
  return ruling == adjudication::Ruling::PlaceTaken ||
         ruling == adjudication::Ruling::BackToAttacker;
}

/// "impossible move: no army can move from Par to Lon"
std::string ProblemText(const Reading& reading, int k) {
  const adjudication::Explanation told = Explain(reading.Rules, reading.After, reading.Result, k);
  const OrderLine& order = reading.Result.Orders[k];
  const OrderResult result = reading.Refuses(k) ? order.Rejection : order.Result;
  const std::string word(result == OrderResult::None ? "impossible" : ResultWord(result));
  return word + ": " + (told.Why.empty() ? told.Verdict : told.Why);
}

/// The problems of a list by the usual rules.
adjudication::ListCheck CheckByUsualRules(const GameState& game) {
  adjudication::ListCheck check;
  const Reading reading = Read(Rules::Usual, game);
  const orders::OrderTable& table = reading.Result.Orders;
  for (int k = 1; k <= table.Count(); ++k) {
    if (table[k].Supplied) {
      check.Unordered.push_back(orders::UnitName(*game.Map, table[k]));
      continue;
    }
    adjudication::LineProblems& problems = check.Lines.emplace_back();
    if (table[k].Rejection == OrderResult::Repeated) {
      problems.push_back("repeated: " + reading.Sentence(k));
    } else if (reading.Refuses(k) || IsLost(reading.Result, k)) {
      problems.push_back(ProblemText(reading, k));
    }
  }
  if (game.Stage == model::Stage::Adjustments)
    check.Powers = adjudication::CountProblems(game, table);
  return check;
}

void ExpectOrders(const GameState& game) {
  if (!HasOrders(game.Stage)) {
    throw model::FatalError("There are no orders to check in the stage \"" +
                            std::string(StageText(game)) + "\".");
  }
}

}  // namespace

adjudication::ListCheck CheckOrders(const Situation& situation) {
  ExpectOrders(situation.Game);
  if (situation.Rules == Rules::Orb) return adjudication::CheckList(situation.Game);
  try {
    return CheckByUsualRules(situation.Game);
  } catch (const model::IndexOutOfRange&) {
    return adjudication::CheckList(situation.Game);  // which tells for which lines there is no room
  }
}

std::vector<std::string> OtherReadings(const Situation& situation) {
  ExpectOrders(situation.Game);
  std::vector<std::string> readings(orders::StageList(situation.Game).size());
  try {
    const Reading here = Read(situation.Rules, situation.Game);
    const Reading there = Read(TheOther(situation.Rules), situation.Game);
    for (std::size_t i = 0; i < readings.size(); ++i)
      readings[i] = OtherReading(here, there, static_cast<int>(i) + 1);
  } catch (const model::IndexOutOfRange&) {
    std::ranges::fill(readings, std::string());
  }
  return readings;
}

}  // namespace orb::session
