#include "cli/command.h"
#include "cli/games.h"
#include "session/commands.h"

namespace orb::cli {
namespace {

constexpr std::array Options{OptionId::Output, OptionId::InPlace};

int Execute(const CommandLine& line, Console& console) {
  const std::vector<GamePaths> plan = PlanPaths(line);
  // A game that is not finished is refused by NextSeason itself.
  return ForEachGame(line, console, plan, [](GameAtWork& at) {
    session::NextSeason(at.Situation);
    session::SaveGameAs(at.Situation, at.Paths.Output);
    return true;
  });
}

}  // namespace

const Command NextCommand{"next", "starts the following season of a finished one", Games::Several,
                          Options, Execute};

}  // namespace orb::cli
