#include "cli/command.h"
#include "cli/games.h"
#include "model/errors.h"
#include "model/files.h"
#include "model/game_file.h"
#include "model/seasons.h"

namespace orb::cli {
namespace {

constexpr std::array Options{OptionId::Yes, OptionId::Output, OptionId::InPlace};

int Execute(const CommandLine& line, Console& console) {
  const std::vector<GamePaths> plan = PlanPaths(line);
  return ForEachGame(line, console, plan, [&](model::GameState& game, const GamePaths& paths) {
    if (game.Stage == "moves") {
      throw model::FatalError("There is nothing to take back: the season is at its start.");
    }
    ConsoleMessages messages(console, paths.Game, line.Has(OptionId::Yes));
    if (!model::UndoSeason(game, messages)) return false;
    model::ReplaceFile(paths.Output, model::FormatGameFile(game));
    return true;
  });
}

}  // namespace

const Command UndoCommand{"undo", "puts the season back to its start", Games::Several, Options,
                          Execute};

}  // namespace orb::cli
