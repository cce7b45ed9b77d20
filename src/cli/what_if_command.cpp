#include "cli/commands.h"
#include "cli/games.h"
#include "cli/orders_source.h"
#include "session/commands.h"
#include "session/what_if.h"

#include <array>
#include <optional>

namespace orb::cli {
namespace {

constexpr std::array Options{
    OptionId::Orders, OptionId::Loose, OptionId::Power, OptionId::AcceptDoubtful,
    OptionId::Rules,  OptionId::Pairs, OptionId::Json};

constexpr auto Examples = std::to_array<Example>({
    {"what would have let the army through",
     "whatif --orders s01.txt league.orb \"FRA A(Mar) - Spa\""},
    {"also with two orders of one power, by the usual rules",
     "whatif --pairs --rules usual --orders s01.txt league.orb \"FRA A(Mar)\""},
});

/// "  GER A(Mun) - Bur: It failed: ... (2 other orders come out otherwise)"
std::string AlternativeLine(const session::Alternative& alternative) {
  std::string text = "  ";
  for (const std::string& order : alternative.Orders)
    text.append(&order == alternative.Orders.data() ? "" : ", ").append(order);
  text.append(": ").append(alternative.Sentence);
  if (const int others = alternative.OtherChanges; others != 0) {
    text.append(" (").append(std::to_string(others)).append(" other order");
    text.append(others == 1 ? " comes" : "s come").append(" out otherwise)");
  }
  return text.append("\n");
}

void Print(Console& console, const std::vector<session::Alternative>& alternatives,
           std::string_view none) {
  if (alternatives.empty()) console.Print(none);
  std::string_view power;
  for (const session::Alternative& alternative : alternatives) {
    if (alternative.Power != power) console.Print(alternative.Power + "\n");
    power = alternative.Power;
    console.Print(AlternativeLine(alternative));
  }
}

std::vector<session::Alternative> AllPairs(const session::Question& question) {
  std::vector<session::Alternative> all;
  for (const model::Country& country : question.Before.Game.Countries) {
    auto pairs = session::PairsOfChanges(question, country.Abbreviation,
                                         [](int /*done*/, int /*all*/) { return true; });
    std::ranges::move(pairs, std::back_inserter(all));
  }
  return all;
}

int Execute(const CommandLine& line, Console& console) {
  CommandLine game = line;
  const std::string order = line.Games.back();
  game.Games.pop_back();
  const session::Rules rules = RulesOf(line);
  OrdersSource orders(game);
  return ForEachGame(game, console, PlanPaths(game), [&](GameAtWork& at) {
    const std::vector<exchange::ReadLine> leftOut =
        orders.Take(at.Situation, at.Paths, at.Messages);
    SayLeftOut(console, at.Paths, leftOut);
    at.Situation.Rules = rules;
    const session::Question question = session::Ask(at.Situation, order);
    const std::vector<session::Alternative> singles = session::SingleChanges(question);
    std::optional<std::vector<session::Alternative>> pairs;
    if (line.Has(OptionId::Pairs)) pairs = AllPairs(question);
    console.Print(question.Order + ": " + question.Sentence + "\n");
    Print(console, singles, "No change of a single order would have changed this.\n");
    if (pairs) {
      console.Print("Two orders of one power:\n");
      Print(console, *pairs, "No two changed orders of one power would either.\n");
    }
    if (console.IsForObjects()) {
      Tell(console, at,
           json::SearchedText(HeadingOf(line, at), {at.Messages, leftOut},
                              {question, singles, pairs ? &*pairs : nullptr}));
    }
    return true;
  });
}

}  // namespace

const Command WhatIfCommand{
    .Name = "whatif",
    .Summary = "tells which other orders would have changed what comes of one order",
    .Takes = Games::OneAndOrder,
    .Options = Options,
    .Examples = Examples,
    .Execute = Execute,
};

}  // namespace orb::cli
