#include "adjudication/explain.h"
#include "adjudication/stages.h"
#include "cli/command.h"
#include "cli/games.h"
#include "model/files.h"
#include "model/game_file.h"

namespace orb::cli {
namespace {

constexpr std::array Options{OptionId::Orders, OptionId::Report, OptionId::Reasons,
                             OptionId::Yes,    OptionId::Output, OptionId::InPlace};

int Execute(const CommandLine& line, Console& console) {
  const std::vector<GamePaths> plan = PlanPaths(line);
  return ForEachGame(line, console, plan, [&](model::GameState& game, const GamePaths& paths) {
    TakeOrders(game, paths);
    ConsoleMessages messages(console, paths.Game, line.Has(OptionId::Yes));
    const adjudication::Resolution resolution = adjudication::ResolveStage(game, messages);
    if (!resolution.Completed) return false;
    const std::string report = JoinLines({game.ReportLines.begin(), game.ReportLines.end()});
    // The game file comes last: a resolved game without its report could not be resolved again.
    if (!paths.Report.empty()) model::ReplaceFile(paths.Report, report);
    if (!paths.Reasons.empty()) {
      model::ReplaceFile(paths.Reasons, JoinLines(adjudication::ExplainReport(game, resolution)));
    }
    model::ReplaceFile(paths.Output, model::FormatGameFile(game));
    if (paths.Report.empty()) PrintUnderHeading(console, plan, paths, report);
    return true;
  });
}

}  // namespace

const Command ResolveCommand{
    "resolve", "resolves the stage that the game is in: moves, retreats or adjustments",
    Games::Several, Options, Execute};

}  // namespace orb::cli
