#include "cli/command.h"
#include "cli/games.h"
#include "report/text_report.h"

namespace orb::cli {
namespace {

int Execute(const CommandLine& line, Console& console) {
  const std::vector<GamePaths> plan = PlanPaths(line);
  return ForEachGame(line, console, plan,
                     [&](const model::GameState& game, const GamePaths& paths) {
                       PrintUnderHeading(console, plan, paths, report::TextReport(game));
                       return true;
                     });
}

}  // namespace

const Command ShowCommand{
    "show", "prints the text report of the game", Games::Several, {}, Execute};

}  // namespace orb::cli
