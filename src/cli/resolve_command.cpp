#include "cli/command.h"
#include "cli/games.h"
#include "cli/orders_source.h"
#include "model/game_file.h"
#include "model/replacement.h"
#include "session/commands.h"

#include <algorithm>
#include <functional>

namespace orb::cli {
namespace {

constexpr std::array Options{
    OptionId::Orders, OptionId::Loose,   OptionId::Power, OptionId::AcceptDoubtful,
    OptionId::Report, OptionId::Reasons, OptionId::Yes,   OptionId::Output,
    OptionId::InPlace};

/// One line for each row, ended by LF.
std::string JoinLines(const auto& rows, auto textOf) {
  std::string text;
  for (const auto& row : rows)
    text.append(std::invoke(textOf, row)).append("\n");
  return text;
}

int Execute(const CommandLine& line, Console& console) {
  const std::vector<GamePaths> plan = PlanPaths(line);
  OrdersSource orders(line);
  return ForEachGame(line, console, plan, [&](GameAtWork& at) {
    // Unclear lines are asked about first: --yes leaves them out, otherwise the game is abandoned.
    const std::vector<exchange::ReadLine> leftOut = orders.Take(at.Situation, at.Paths);
    if (!session::GoOnWithout(leftOut, at.Messages)) return false;
    // Reasons cost time, so they are only noted when somebody will read them.
    const auto noting = at.Paths.Reasons.empty() ? session::Noting::None : session::Noting::Full;
    if (!session::Resolve(at.Situation, at.Messages, noting)) return false;
    const std::string report = JoinLines(at.Situation.Game.ReportLines, std::identity());
    const std::string reasons = JoinLines(at.Situation.Notes, &session::ReportNote::Reason);
    const bool printsReport = at.Paths.Report.empty() || at.Paths.Report == StandardOutput;
    const bool printsReasons = at.Paths.Reasons == StandardOutput;
    model::Replacement game(at.Paths.Output, model::FormatGameFile(at.Situation.Game));
    // The game takes its place last, when all else has arrived: a resolved game without its report
    // could not be resolved again.
    if (!printsReport) WriteText(at.Paths.Report, report);
    if (!printsReasons && !at.Paths.Reasons.empty()) WriteText(at.Paths.Reasons, reasons);
    if (printsReport) PrintUnderHeading(console, plan, at.Paths, report);
    if (printsReasons) console.Print(reasons);
    console.Deliver();
    session::ExpectUnchanged(at.Situation, at.Paths.Output);
    game.Commit();
    // Somebody wrote these orders, and they were not carried out: that must not go unnoticed.
    return std::ranges::none_of(leftOut, exchange::IsDoubtful);
  });
}

}  // namespace

const Command ResolveCommand{
    "resolve", "resolves the stage that the game is in: moves, retreats or adjustments",
    Games::Several, Options, Execute};

}  // namespace orb::cli
