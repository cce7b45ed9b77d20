#include "cli/command.h"
#include "cli/games.h"
#include "model/errors.h"
#include "model/files.h"
#include "model/game_file.h"
#include "model/seasons.h"

namespace orb::cli {
namespace {

constexpr std::array Options{OptionId::Output, OptionId::InPlace};

int Execute(const CommandLine& line, Console& console) {
  const std::vector<GamePaths> plan = PlanPaths(line);
  return ForEachGame(line, console, plan, [](model::GameState& game, const GamePaths& paths) {
    if (game.Stage != "finished") {
      throw model::FatalError("The season is not finished: the game is in the stage \"" +
                              game.Stage + "\".");
    }
    model::NextSeason(game);
    model::ReplaceFile(paths.Output, model::FormatGameFile(game));
    return true;
  });
}

}  // namespace

const Command NextCommand{"next", "starts the following season of a finished one", Games::Several,
                          Options, Execute};

}  // namespace orb::cli
