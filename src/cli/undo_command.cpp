#include "cli/command.h"
#include "cli/games.h"
#include "session/commands.h"

namespace orb::cli {
namespace {

constexpr std::array Options{OptionId::Yes, OptionId::Output, OptionId::InPlace};

int Execute(const CommandLine& line, Console& console) {
  const std::vector<GamePaths> plan = PlanPaths(line);
  return ForEachGame(line, console, plan, [](GameAtWork& at) {
    // Abandoned for a finished Autumn, and by No to losing units whose start was not recorded.
    if (!session::UndoSeason(at.Situation, at.Messages)) return false;
    session::SaveGameAs(at.Situation, at.Paths.Output);
    return true;
  });
}

}  // namespace

const Command UndoCommand{"undo", "puts the season back to its start", Games::Several, Options,
                          Execute};

}  // namespace orb::cli
