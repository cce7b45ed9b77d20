#include "cli/command.h"
#include "cli/games.h"
#include "report/text_report.h"

namespace orb::cli {
namespace {

int Execute(const CommandLine& line, Console& console) {
  const std::vector<GamePaths> plan = PlanPaths(line);
  return ForEachGame(line, console, plan, [&](const GameAtWork& at) {
    PrintUnderHeading(console, plan, at.Paths, report::TextReport(at.Situation.Game));
    return true;
  });
}

}  // namespace

const Command ShowCommand{
    "show", "prints the text report of the game", Games::Several, {}, Execute};

}  // namespace orb::cli
