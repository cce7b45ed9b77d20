#include "adjudication/explain.h"
#include "adjudication/stages.h"
#include "cli/command.h"
#include "cli/games.h"
#include "cli/orders_source.h"
#include "model/files.h"
#include "model/game_file.h"

#include <algorithm>

namespace orb::cli {
namespace {

constexpr std::array Options{OptionId::Orders, OptionId::Loose,   OptionId::Power,
                             OptionId::Report, OptionId::Reasons, OptionId::Yes,
                             OptionId::Output, OptionId::InPlace};

/// Asks about every line that was not understood; false when the game is to be left alone.
bool GoOnWithout(const std::vector<exchange::ReadLine>& unclear, model::Messages& messages) {
  return std::ranges::all_of(unclear, [&](const exchange::ReadLine& line) {
    return messages.Warn(model::WarningText(line.Written, line.Reason + "."));
  });
}

int Execute(const CommandLine& line, Console& console) {
  const std::vector<GamePaths> plan = PlanPaths(line);
  OrdersSource orders(line);
  return ForEachGame(line, console, plan, [&](model::GameState& game, const GamePaths& paths) {
    ConsoleMessages messages(console, paths.Game, line.Has(OptionId::Yes));
    if (!GoOnWithout(orders.Take(game, paths), messages)) return false;
    const adjudication::Resolution resolution = adjudication::ResolveStage(game, messages);
    if (!resolution.Completed) return false;
    const std::string report = JoinLines({game.ReportLines.begin(), game.ReportLines.end()});
    std::string reasons;
    if (!paths.Reasons.empty()) reasons = JoinLines(adjudication::ExplainReport(game, resolution));
    const bool printsReport = paths.Report.empty() || paths.Report == StandardOutput;
    const bool printsReasons = paths.Reasons == StandardOutput;
    const std::string resolved = model::FormatGameFile(game);
    // The game file comes last: a resolved game without its report could not be resolved again.
    if (!printsReport) WriteText(paths.Report, report);
    if (!printsReasons && !paths.Reasons.empty()) WriteText(paths.Reasons, reasons);
    model::ReplaceFile(paths.Output, resolved);
    if (printsReport) PrintUnderHeading(console, plan, paths, report);
    if (printsReasons) console.Print(reasons);
    return true;
  });
}

}  // namespace

const Command ResolveCommand{
    "resolve", "resolves the stage that the game is in: moves, retreats or adjustments",
    Games::Several, Options, Execute};

}  // namespace orb::cli
