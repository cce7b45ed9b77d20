#include "cli/commands.h"
#include "cli/delivery.h"
#include "cli/games.h"
#include "cli/orders_source.h"
#include "model/game_file.h"
#include "model/replacement.h"
#include "session/commands.h"
#include "session/trial.h"

#include <algorithm>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace orb::cli {
namespace {

constexpr std::array Options{
    OptionId::Orders,    OptionId::Loose,    OptionId::Power,  OptionId::AcceptDoubtful,
    OptionId::Report,    OptionId::Reasons,  OptionId::Rules,  OptionId::Compare,
    OptionId::Try,       OptionId::Yes,      OptionId::Output, OptionId::InPlace,
    OptionId::NoClobber, OptionId::FilesFrom};

constexpr Example Examples[] = {
    {"resolve the stage, with the report on the terminal and the reasons in a file",
     "resolve --orders s01.txt --reasons why.txt --in-place league.orb"},
    {"try out the orders that stand in a mail, and read why each came out as it did",
     "resolve --try --loose --orders mail.txt --reasons - league.orb"},
    {"ten games at once, each with its own file of orders in the directory mail",
     "resolve --orders mail --report reports --yes --in-place games/*.orb"},
    {"keep the game as it was and write the resolved one beside it",
     "resolve --yes --no-clobber --orders s01.txt -o after.orb league.orb"},
};

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
      : paths_(paths), notes_(situation.Notes) {
    auto note = notes_.begin();
    for (const std::string& line : situation.Game.ReportLines) {
      report_.append(line).append("\n");
      if (note == notes_.end()) continue;
      // Each reason stands behind its line, so that it can be read without the report.
      reasons_.append(line, 0, line.find_last_not_of(' ') + 1);
      reasons_.append(": ").append(note->Reason).append("\n");
      ++note;
    }
  }

  void Deliver(Console& console) const {
    const bool printsReport = paths_.Report.empty() || paths_.Report == StandardOutput;
    const bool printsReasons = paths_.Reasons == StandardOutput;
    if (!printsReport) DeliverText(console, paths_.Report, report_, paths_.Existing);
    if (!printsReasons && !paths_.Reasons.empty()) {
      DeliverText(console, paths_.Reasons, reasons_, paths_.Existing);
    }
    if (printsReport || printsReasons) PrintHeading(console, paths_);
    if (printsReport) Print(console);
    if (printsReasons) console.Print(reasons_);
    console.Deliver();
  }

 private:
  void Print(Console& console) const {
    if (!console.HasColours()) return console.Print(report_);
    std::string_view rest = report_;
    for (const session::ReportNote& note : notes_) {
      const std::string_view line = rest.substr(0, rest.find('\n') + 1);
      note.Failed ? console.PrintFailure(line) : console.Print(line);
      rest.remove_prefix(line.size());
    }
    console.Print(rest);
  }

  const GamePaths& paths_;
  const std::vector<session::ReportNote>& notes_;
  std::string report_;
  std::string reasons_;
};

/// Resolves the stage and writes the game, or only tries it out. False when it was abandoned.
bool Resolve(const CommandLine& line, Console& console, GameAtWork& at) {
  // Notes cost time, so they are only made when somebody will see them.
  const bool isNoted = !at.Paths.Reasons.empty() || console.HasColours();
  const auto noting = isNoted ? session::Noting::Full : session::Noting::None;
  const auto comparing =
      line.Has(OptionId::Compare) ? session::Comparing::Yes : session::Comparing::No;
  at.Situation.Rules = RulesOf(line);
  if (line.Has(OptionId::Try)) {
    const session::Situation tried = session::TryOut(at.Situation, noting, comparing);
    Report(at.Paths, tried).Deliver(console);
    if (comparing == session::Comparing::Yes) SayDifferences(console, at.Paths.Game, tried);
    return true;
  }
  if (!session::Resolve(at.Situation, at.Messages, noting, comparing)) return false;
  const std::string bytes = model::FormatGameFile(at.Situation.Game);
  const bool isPrinted = at.Paths.Output == StandardOutput;
  std::optional<model::Replacement> game;
  if (!isPrinted) game.emplace(at.Paths.Output, bytes);
  // The game takes its place last, when all else has arrived: a resolved game without its report
  // could not be resolved again.
  Report(at.Paths, at.Situation).Deliver(console);
  if (comparing == session::Comparing::Yes) SayDifferences(console, at.Paths.Game, at.Situation);
  if (isPrinted) {
    DeliverBytes(console, at.Paths.Output, bytes, at.Paths.Existing);
  } else {
    session::ExpectUnchanged(at.Situation, at.Paths.Output);
    game->Commit(at.Paths.Existing);
  }
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
    if (!session::GoOnWithout(leftOut, at.Messages) || !Resolve(line, console, at)) {
      SayAbandoned(console, at, "resolved");
      return false;
    }
    // Somebody wrote the doubtful orders, and they were not carried out: that must not go
    // unnoticed.
    return std::ranges::none_of(leftOut, exchange::IsDoubtful);
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
    .Name = "resolve",
    .Summary = "resolves the stage that the game is in: moves, retreats or adjustments",
    .Takes = Games::Several,
    .Options = Options,
    .Examples = Examples,
    .Execute = Execute,
};

}  // namespace orb::cli
