#include "cli/commands.h"
#include "cli/delivery.h"
#include "cli/games.h"
#include "report/text_report.h"

#include <array>

namespace orb::cli {
namespace {

constexpr std::array Options{OptionId::Json, OptionId::FilesFrom};

constexpr auto Examples = std::to_array<Example>({
    {"the situation as text, for the next mail", "show league.orb"},
    {"that of all games of a list, one after the other", "show --files-from games.txt"},
});

int Execute(const CommandLine& line, Console& console) {
  const std::vector<GamePaths> plan = PlanPaths(line);
  return ForEachGame(line, console, plan, [&](GameAtWork& at) {
    PrintUnderHeading(console, at.Paths, report::TextReport(at.Situation.Game));
    if (console.IsForObjects())
      Tell(console, at, json::ShownText(HeadingOf(line, at), at.Messages, at.Situation.Game));
    return true;
  });
}

}  // namespace

const Command ShowCommand{
    .Name = "show",
    .Summary = "prints the text report of the game",
    .Takes = Games::Several,
    .Options = Options,
    .Examples = Examples,
    .Execute = Execute,
};

}  // namespace orb::cli
