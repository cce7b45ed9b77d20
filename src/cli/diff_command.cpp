#include "letters/correction.h"

#include "cli/commands.h"
#include "cli/games.h"
#include "session/commands.h"
#include "session/files_beside.h"
#include "session/trial.h"

#include <array>

namespace orb::cli {
namespace {

constexpr std::array Options{OptionId::Rules, OptionId::Try, OptionId::Json};

constexpr auto Examples = std::to_array<Example>({
    {"the notice that goes out after a mistake", "diff league_wrong.orb league.orb"},
    {"what becomes of the same moves by two lists of orders", "diff --try first.orb second.orb"},
    {"for another program", "diff --json league_s01.orb league_a01.orb"},
});

int Execute(const CommandLine& line, Console& console) {
  const session::Rules rules = RulesOf(line);
  CommandLine first = line;
  const std::string other = line.Games.back();
  first.Games.pop_back();
  return ForEachGame(first, console, PlanPaths(first), [&](GameAtWork& at) {
    const auto told = [&](session::Situation situation) {
      situation.Rules = rules;
      situation = session::ToldByFilesBeside(std::move(situation));
      return line.Has(OptionId::Try) ? session::TryOut(situation) : situation;
    };
    session::Situation after;
    after.Game = model::EmptyGame(at.Situation.Game.Map);
    if (!session::ReadGame(after, other, at.Messages, model::Streams::Read)) return false;
    const session::Situation before = told(at.Situation);
    after = told(std::move(after));
    console.Print(letters::CorrectionNotice(before, after));
    if (console.IsForObjects()) {
      Tell(console, at,
           json::DifferenceText(HeadingOf(line, at), at.Messages, other,
                                letters::Corrections(before, after)));
    }
    return true;
  });
}

}  // namespace

const Command DiffCommand{
    .Name = "diff",
    .Summary = "tells what one game has otherwise than another: a correction notice",
    .Takes = Games::Two,
    .Options = Options,
    .Examples = Examples,
    .Execute = Execute,
};

}  // namespace orb::cli
