#include "cli/command.h"
#include "cli/games.h"
#include "cli/orders_source.h"
#include "orders/order_list.h"
#include "session/commands.h"
#include "session/queries.h"
#include "text/strings.h"

namespace orb::cli {
namespace {

constexpr std::array Options{OptionId::Orders, OptionId::Loose, OptionId::Power,
                             OptionId::AcceptDoubtful, OptionId::Rules};

/// One line for each problem: of lines that were left out, of the orders as listed, of units
/// without orders, of powers.
std::string ProblemLines(const session::Situation& situation, const std::string& path,
                         const std::vector<exchange::ReadLine>& leftOut) {
  std::string text;
  const auto add = [&](std::string_view subject, std::string_view problem) {
    text.append(path).append(": ").append(subject).append(": ").append(problem).append("\n");
  };
  for (const exchange::ReadLine& line : leftOut)
    add(line.Written, session::LeftOutReason(line));
  const adjudication::ListCheck check = session::CheckOrders(situation);
  const std::vector<std::string>& list = orders::StageList(situation.Game);
  for (std::size_t i = 0; i < check.Lines.size(); ++i) {
    for (const std::string& problem : check.Lines[i])
      add(text::Trim(list[i]), problem);
  }
  for (const std::string& unit : check.Unordered)
    add(unit, "unordered");
  for (const auto& [power, problem] : check.Powers)
    add(power, problem);
  return text;
}

/// How the other rules read single lines, where that is otherwise: no problem, but worth knowing
/// before it is too late to mend.
void SayOtherReadings(const session::Situation& situation, const std::string& path,
                      Console& console) {
  const std::vector<std::string> readings = session::OtherReadings(situation);
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
    const std::vector<exchange::ReadLine> leftOut =
        source.Take(at.Situation, at.Paths, at.Messages);
    at.Situation.Rules = rules;
    const std::string text = ProblemLines(at.Situation, at.Paths.Game, leftOut);
    console.Print(text);
    SayOtherReadings(at.Situation, at.Paths.Game, console);
    // A game with problems counts as refused, which makes the exit status 1.
    return text.empty();
  });
}

}  // namespace

const Command CheckCommand{"check",
                           "parses and checks the orders of the stage and lists every problem",
                           Games::Several, Options, Execute};

}  // namespace orb::cli
