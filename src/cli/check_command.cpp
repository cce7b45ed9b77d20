#include "adjudication/list_check.h"
#include "cli/command.h"
#include "cli/games.h"
#include "cli/orders_source.h"
#include "model/errors.h"
#include "orders/order_list.h"
#include "text/strings.h"

namespace orb::cli {
namespace {

constexpr std::array Options{OptionId::Orders, OptionId::Loose, OptionId::Power};

/// One line for each problem: of lines that are unclear, of the orders as listed, of units without
/// orders, of powers.
std::string ProblemLines(const model::GameState& game, const std::string& path,
                         const std::vector<exchange::ReadLine>& unclear) {
  std::string text;
  const auto add = [&](std::string_view subject, std::string_view problem) {
    text.append(path).append(": ").append(subject).append(": ").append(problem).append("\n");
  };
  for (const exchange::ReadLine& line : unclear)
    add(line.Written, line.Reason);
  const std::vector<std::string>& list = orders::StageList(game);
  const adjudication::ListCheck check = adjudication::CheckList(game);
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

int Execute(const CommandLine& line, Console& console) {
  const std::vector<GamePaths> plan = PlanPaths(line);
  OrdersSource source(line);
  return ForEachGame(line, console, plan, [&](model::GameState& game, const GamePaths& paths) {
    const std::vector<exchange::ReadLine> unclear = source.Take(game, paths);
    if (game.Stage != "moves" && game.Stage != "retreats" && game.Stage != "adjustments") {
      throw model::FatalError("There are no orders to check in the stage \"" + game.Stage + "\".");
    }
    const std::string text = ProblemLines(game, paths.Game, unclear);
    console.Print(text);
    return text.empty();
  });
}

}  // namespace

const Command CheckCommand{"check",
                           "parses and checks the orders of the stage and lists every problem",
                           Games::Several, Options, Execute};

}  // namespace orb::cli
