#include "letters/correction.h"

#include "cli/commands.h"
#include "cli/games.h"
#include "session/commands.h"

namespace orb::cli {
namespace {

constexpr std::array Options{OptionId::Json};

constexpr Example Examples[] = {
    {"the notice that goes out after a mistake", "diff league_wrong.orb league.orb"},
    {"for another program", "diff --json league_s01.orb league_a01.orb"},
};

int Execute(const CommandLine& line, Console& console) {
  CommandLine first = line;
  const std::string other = line.Games.back();
  first.Games.pop_back();
  return ForEachGame(first, console, PlanPaths(first), [&](GameAtWork& at) {
    session::Situation after;
    after.Game = model::EmptyGame(at.Situation.Game.Map);
    if (!session::ReadGame(after, other, at.Messages, model::Streams::Read)) return false;
    console.Print(letters::CorrectionNotice(at.Situation.Game, after.Game));
    if (console.IsForObjects()) {
      Tell(console, at,
           json::DifferenceText(HeadingOf(line, at), at.Messages, other,
                                letters::Corrections(at.Situation.Game, after.Game)));
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
