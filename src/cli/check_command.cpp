#include "cli/commands.h"
#include "cli/games.h"
#include "cli/orders_source.h"
#include "orders/order_list.h"
#include "session/commands.h"
#include "session/queries.h"
#include "text/strings.h"

#include <array>

namespace orb::cli {
namespace {

constexpr std::array Options{OptionId::Orders,         OptionId::Loose,    OptionId::Power,
                             OptionId::AcceptDoubtful, OptionId::Register, OptionId::Rules,
                             OptionId::Json,           OptionId::FilesFrom};

constexpr auto Examples = std::to_array<Example>({
    {"what is wrong with the orders of a file", "check --orders s01.txt league.orb"},
    {"with orders as they came from one power",
     "check --loose --power FRA --orders from_france.txt league.orb"},
    {"for another program", "check --json --orders mail games/*.orb"},
    {"with orders that another program writes", "check --orders - league.orb"},
});

/// One line for each problem: of lines that were left out, of the orders as listed, of units
/// without orders, of powers.
std::vector<std::string> ProblemLines(const session::Situation& situation,
                                      const adjudication::ListCheck& check,
                                      const std::vector<exchange::ReadLine>& leftOut) {
  std::vector<std::string> lines;
  const auto add = [&](std::string_view subject, std::string_view problem) {
    lines.push_back(std::string(subject).append(": ").append(problem));
  };
  for (const exchange::ReadLine& line : leftOut)
    add(line.Written, session::LeftOutReason(line));
  const std::vector<std::string>& list = orders::StageList(situation.Game);
  for (std::size_t i = 0; i < check.Lines.size(); ++i) {
    for (const std::string& problem : check.Lines[i])
      add(text::Trim(list[i]), problem);
  }
  for (const std::string& unit : check.Unordered)
    add(unit, "unordered");
  for (const auto& [power, problem] : check.Powers)
    add(power, problem);
  return lines;
}

/// How the other rules read single lines, where that is otherwise: no problem, but worth knowing
/// before it is too late to mend.
void SayOtherReadings(const session::Situation& situation, const std::string& path,
                      const std::vector<std::string>& readings, Console& console) {
  const std::vector<std::string>& list = orders::StageList(situation.Game);
  for (std::size_t i = 0; i < readings.size(); ++i) {
    if (!readings[i].empty())
      console.Say(path, std::string(text::Trim(list[i])).append(": ").append(readings[i]));
  }
}

int Execute(const CommandLine& line, Console& console) {
  const session::Rules rules = RulesOf(line);
  const std::vector<GamePaths> plan = PlanPaths(line);
  OrdersSource source(line);
  return ForEachGame(line, console, plan, [&](GameAtWork& at) {
    // Nothing is asked here, so --yes has no meaning: every problem is listed, and no game is
    // written.
    const std::vector<exchange::ReadLine> leftOut = source.Take(at, console);
    at.Situation.Rules = rules;
    const adjudication::ListCheck check = session::CheckOrders(at.Situation);
    const std::vector<std::string> readings = session::OtherReadings(at.Situation);
    const std::vector<std::string> problems = ProblemLines(at.Situation, check, leftOut);
    for (const std::string& problem : problems) {
      console.PrintPath(at.Paths.Game);
      console.Print(std::string(": ").append(problem).append("\n"));
    }
    SayOtherReadings(at.Situation, at.Paths.Game, readings, console);
    if (console.IsForObjects()) {
      Tell(console, at,
           json::CheckedText(HeadingOf(line, at), {at.Messages, leftOut},
                             {at.Situation, check, readings}));
    }
    // A game with problems counts as refused, which makes the exit status 1.
    return problems.empty();
  });
}

}  // namespace

const Command CheckCommand{
    .Name = "check",
    .Summary = "parses and checks the orders of the stage and lists every problem",
    .Takes = Games::Several,
    .Options = Options,
    .Examples = Examples,
    .Execute = Execute,
};

}  // namespace orb::cli
