#include "cli/command.h"
#include "cli/games.h"
#include "cli/problems.h"

namespace orb::cli {
namespace {

constexpr std::array Options{OptionId::Orders};

int Execute(const CommandLine& line, Console& console) {
  const std::vector<GamePaths> plan = PlanPaths(line);
  return ForEachGame(line, console, plan, [&](model::GameState& game, const GamePaths& paths) {
    TakeOrders(game, paths);
    const std::vector<Problem> problems = FindProblems(game);
    std::string text;
    for (const Problem& problem : problems) {
      text.append(paths.Game).append(": ").append(problem.Subject).append(": ");
      text.append(problem.Text).append("\n");
    }
    console.Print(text);
    return problems.empty();
  });
}

}  // namespace

const Command CheckCommand{"check",
                           "parses and checks the orders of the stage and lists every problem",
                           Games::Several, Options, Execute};

}  // namespace orb::cli
