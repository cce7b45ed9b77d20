#include "cli/commands.h"
#include "cli/delivery.h"
#include "cli/games.h"
#include "cli/orders_source.h"
#include "model/game_file.h"
#include "model/replacement.h"
#include "orders/order_list.h"
#include "session/commands.h"
#include "session/trial.h"

#include <algorithm>
#include <array>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace orb::cli {
namespace {

constexpr std::array Options{
    OptionId::Orders,   OptionId::Loose,   OptionId::Power,     OptionId::AcceptDoubtful,
    OptionId::Register, OptionId::Report,  OptionId::Reasons,   OptionId::Rules,
    OptionId::Compare,  OptionId::Try,     OptionId::Json,      OptionId::Yes,
    OptionId::Output,   OptionId::InPlace, OptionId::NoClobber, OptionId::FilesFrom};

constexpr auto Examples = std::to_array<Example>({
    {"resolve the stage, with the report on the terminal and the reasons in a file",
     "resolve --orders s01.txt --reasons why.txt --in-place league.orb"},
    {"try out the orders that stand in a mail, and read why each came out as it did",
     "resolve --try --loose --orders mail.txt --reasons - league.orb"},
    {"ten games at once, each with its own file of orders in the directory mail",
     "resolve --orders mail --report reports --yes --in-place games/*.orb"},
    {"what became of each game, for another program",
     "resolve --json --yes --orders mail --in-place games/*.orb"},
    {"keep the game as it was and write the resolved one beside it",
     "resolve --yes --no-clobber --orders s01.txt -o after.orb league.orb"},
});

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

/// One resolution, from its options to its object.
class Work {
 public:
  Work(const CommandLine& line, Console& console, GameAtWork& at,
       const std::vector<exchange::ReadLine>& leftOut)
      : line_(line),
        console_(console),
        at_(at),
        leftOut_(leftOut),
        stage_(at.Situation.Game.Stage),
        orders_(orders::StageList(at.Situation.Game)) {
    // Notes cost time, so they are only made when somebody will see them.
    const bool isNoted =
        !at.Paths.Reasons.empty() || console.HasColours() || console.IsForObjects();
    if (isNoted) noting_ = session::Noting::Full;
    if (line.Has(OptionId::Compare)) comparing_ = session::Comparing::Yes;
    at.Situation.Rules = RulesOf(line);
  }

  /// Resolves the stage and writes the game, or only tries it out. False when it was abandoned.
  bool Do() {
    if (line_.Has(OptionId::Try)) {
      Deliver(session::TryOut(at_.Situation, noting_, comparing_));
      return true;
    }
    if (session::Resolve(at_.Situation, at_.Messages, noting_, comparing_)) {
      Write();
      return true;
    }
    if (console_.IsForObjects()) Tell(console_, at_, Object(false, at_.Situation));
    return false;
  }

 private:
  void Deliver(const session::Situation& after) {
    Report(at_.Paths, after).Deliver(console_);
    if (comparing_ == session::Comparing::Yes) SayDifferences(console_, at_.Paths.Game, after);
    if (!console_.IsForObjects()) return;
    Tell(console_, at_, Object(true, after));
    console_.Deliver();
  }

  void Write() {
    const std::string bytes = model::FormatGameFile(at_.Situation.Game);
    const bool isPrinted = at_.Paths.Output == StandardOutput;
    std::optional<model::Replacement> game;
    if (!isPrinted) game.emplace(at_.Paths.Output, bytes);
    // The game takes its place last, when all else has arrived: a resolved game without its report
    // could not be resolved again.
    Deliver(at_.Situation);
    if (isPrinted) {
      DeliverBytes(console_, at_.Paths.Output, bytes, at_.Paths.Existing);
    } else {
      session::ExpectUnchanged(at_.Situation, at_.Paths.Output);
      game->Commit(at_.Paths.Existing);
    }
  }

  std::string Object(bool isDone, const session::Situation& after) const {
    return json::ResolvedText(
        HeadingOf(line_, at_), {at_.Messages, leftOut_},
        {isDone, stage_, orders_, after, comparing_ == session::Comparing::Yes});
  }

  const CommandLine& line_;
  Console& console_;
  GameAtWork& at_;
  const std::vector<exchange::ReadLine>& leftOut_;
  model::Stage stage_;
  std::vector<std::string> orders_;
  session::Noting noting_ = session::Noting::None;
  session::Comparing comparing_ = session::Comparing::No;
};

int Execute(const CommandLine& line, Console& console) {
  RulesOf(line);  // refused before the first game, if at all
  const std::vector<GamePaths> plan = PlanPaths(line);
  OrdersSource orders(line);
  return ForEachGame(line, console, plan, [&](GameAtWork& at) {
    const std::vector<exchange::ReadLine> leftOut = orders.Take(at, console);
    // Unclear lines are asked about first: --yes leaves them out, otherwise the game is abandoned.
    // A trial asks nothing.
    const bool isTrial = line.Has(OptionId::Try);
    if (isTrial) SayLeftOut(console, at.Paths, leftOut);
    const bool goesOn = isTrial || session::GoOnWithout(leftOut, at.Messages);
    if (!goesOn || !Work(line, console, at, leftOut).Do()) {
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
  if (const auto known = session::RulesNamed(rules)) return *known;
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
