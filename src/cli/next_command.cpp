#include "cli/commands.h"
#include "cli/delivery.h"
#include "cli/games.h"
#include "session/commands.h"

#include <array>

namespace orb::cli {
namespace {

constexpr std::array Options{OptionId::Output, OptionId::InPlace, OptionId::NoClobber,
                             OptionId::FilesFrom};

constexpr auto Examples = std::to_array<Example>({
    {"on to autumn, in a file of its own", "next -o league_a01.orb league_s01.orb"},
    {"all games of a list, each over its own file", "next --in-place --files-from games.txt"},
});

int Execute(const CommandLine& line, Console& console) {
  const std::vector<GamePaths> plan = PlanPaths(line);
  // A game that is not finished is refused by NextSeason itself.
  return ForEachGame(line, console, plan, [&](GameAtWork& at) {
    session::NextSeason(at.Situation);
    DeliverGame(console, at.Situation, at.Paths);
    return true;
  });
}

}  // namespace

const Command NextCommand{
    .Name = "next",
    .Summary = "starts the following season of a finished one",
    .Takes = Games::Several,
    .Options = Options,
    .Examples = Examples,
    .Execute = Execute,
};

}  // namespace orb::cli
