#include "cli/commands.h"
#include "cli/delivery.h"
#include "cli/games.h"
#include "session/commands.h"

#include <array>

namespace orb::cli {
namespace {

constexpr std::array Options{OptionId::Yes, OptionId::Output, OptionId::InPlace,
                             OptionId::NoClobber, OptionId::FilesFrom};

constexpr auto Examples = std::to_array<Example>({
    {"put the season back to its start, to resolve it with other orders",
     "undo --in-place league.orb"},
});

int Execute(const CommandLine& line, Console& console) {
  const std::vector<GamePaths> plan = PlanPaths(line);
  return ForEachGame(line, console, plan, [&](GameAtWork& at) {
    // Abandoned for a finished Autumn, and by No to losing units whose start was not recorded.
    if (!session::UndoSeason(at.Situation, at.Messages)) {
      SayAbandoned(console, at, "undone");
      return false;
    }
    DeliverGame(console, at.Situation, at.Paths);
    return true;
  });
}

}  // namespace

const Command UndoCommand{
    .Name = "undo",
    .Summary = "puts the season back to its start",
    .Takes = Games::Several,
    .Options = Options,
    .Examples = Examples,
    .Execute = Execute,
};

}  // namespace orb::cli
