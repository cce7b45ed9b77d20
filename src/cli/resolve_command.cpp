#include "cli/command.h"
#include "cli/games.h"
#include "cli/orders_source.h"
#include "model/game_file.h"
#include "model/replacement.h"
#include "session/commands.h"
#include "session/trial.h"

#include <algorithm>
#include <functional>

namespace orb::cli {
namespace {

constexpr std::array Options{
    OptionId::Orders, OptionId::Loose,   OptionId::Power,  OptionId::AcceptDoubtful,
    OptionId::Report, OptionId::Reasons, OptionId::Rules,  OptionId::Compare,
    OptionId::Try,    OptionId::Yes,     OptionId::Output, OptionId::InPlace};

/// One line for each row, ended by LF.
std::string JoinLines(const auto& rows, auto textOf) {
  std::string text;
  for (const auto& row : rows)
    text.append(std::invoke(textOf, row)).append("\n");
  return text;
}

/// What --compare tells: how many orders came out otherwise, and for each both reasons.
void SayDifferences(Console& console, const std::string& game,
                    const session::Situation& situation) {
  const session::Differences& differences = situation.Differences;
  console.Say(game,
              session::DifferencesText(static_cast<int>(differences.size()), situation.Rules));
  for (const session::Difference& difference : differences) {
    std::string text = difference.Text;
    if (!difference.Here.empty()) text.append(": ").append(difference.Here);
    console.Say(game, text.append(text.empty() ? "" : " ").append(difference.There));
  }
}

/// What one resolution prints and writes besides the game.
class Report {
 public:
  Report(const GamePaths& paths, const session::Situation& situation)
      : paths_(paths),
        report_(JoinLines(situation.Game.ReportLines, std::identity())),
        reasons_(JoinLines(situation.Notes, &session::ReportNote::Reason)) {}

  void Deliver(Console& console, const std::vector<GamePaths>& plan) const {
    const bool printsReport = paths_.Report.empty() || paths_.Report == StandardOutput;
    const bool printsReasons = paths_.Reasons == StandardOutput;
    if (!printsReport) WriteText(paths_.Report, report_);
    if (!printsReasons && !paths_.Reasons.empty()) WriteText(paths_.Reasons, reasons_);
    if (printsReport) PrintUnderHeading(console, plan, paths_, report_);
    if (printsReasons) console.Print(reasons_);
    console.Deliver();
  }

 private:
  const GamePaths& paths_;
  std::string report_;
  std::string reasons_;
};

/// Resolves the stage and writes the game, or only tries it out. False when it was abandoned.
bool Resolve(const CommandLine& line, Console& console, const std::vector<GamePaths>& plan,
             GameAtWork& at) {
  // Reasons cost time, so they are only noted when somebody will read them.
  const auto noting = at.Paths.Reasons.empty() ? session::Noting::None : session::Noting::Full;
  const auto comparing =
      line.Has(OptionId::Compare) ? session::Comparing::Yes : session::Comparing::No;
  at.Situation.Rules = RulesOf(line);
  if (line.Has(OptionId::Try)) {
    const session::Situation tried = session::TryOut(at.Situation, noting, comparing);
    Report(at.Paths, tried).Deliver(console, plan);
    if (comparing == session::Comparing::Yes) SayDifferences(console, at.Paths.Game, tried);
    return true;
  }
  if (!session::Resolve(at.Situation, at.Messages, noting, comparing)) return false;
  model::Replacement game(at.Paths.Output, model::FormatGameFile(at.Situation.Game));
  // The game takes its place last, when all else has arrived: a resolved game without its report
  // could not be resolved again.
  Report(at.Paths, at.Situation).Deliver(console, plan);
  if (comparing == session::Comparing::Yes) SayDifferences(console, at.Paths.Game, at.Situation);
  session::ExpectUnchanged(at.Situation, at.Paths.Output);
  game.Commit();
  return true;
}

int Execute(const CommandLine& line, Console& console) {
  RulesOf(line);  // refused before the first game, if at all
  const std::vector<GamePaths> plan = PlanPaths(line);
  OrdersSource orders(line);
  return ForEachGame(line, console, plan, [&](GameAtWork& at) {
    // Unclear lines are asked about first: --yes leaves them out, otherwise the game is abandoned.
    const std::vector<exchange::ReadLine> leftOut =
        orders.Take(at.Situation, at.Paths, at.Messages);
    if (!session::GoOnWithout(leftOut, at.Messages)) return false;
    // Somebody wrote the doubtful orders, and they were not carried out: that must not go
    // unnoticed.
    return Resolve(line, console, plan, at) && std::ranges::none_of(leftOut, exchange::IsDoubtful);
  });
}

}  // namespace

session::Rules RulesOf(const CommandLine& line) {
  const std::string rules = line.Value(OptionId::Rules).value_or("orb");
  if (rules == "orb") return session::Rules::Orb;
  if (rules == "usual") return session::Rules::Usual;
  throw UsageError("There are no rules \"" + rules + "\": --rules is orb or usual.");
}

const Command ResolveCommand{
    "resolve", "resolves the stage that the game is in: moves, retreats or adjustments",
    Games::Several, Options, Execute};

}  // namespace orb::cli
