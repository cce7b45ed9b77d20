#include "letters/letter.h"

#include "cli/commands.h"
#include "cli/delivery.h"
#include "cli/games.h"
#include "cli/orders_source.h"
#include "model/errors.h"
#include "model/files.h"
#include "render/map_module.h"
#include "session/files_beside.h"
#include "session/trial.h"

#include <array>
#include <system_error>

namespace orb::cli {
namespace {

constexpr std::array Options{OptionId::Orders,         OptionId::Loose,  OptionId::Power,
                             OptionId::AcceptDoubtful, OptionId::Rules,  OptionId::Try,
                             OptionId::Mode,           OptionId::Output, OptionId::NoClobber};

constexpr auto Examples = std::to_array<Example>({
    {"what was received from each power, and what is wrong with it",
     "letters --loose --orders mail.txt -o letters league.orb"},
    {"what became of each power's orders and why, with the game file before the moves beside it",
     "letters -o letters league_s01_moves.orb"},
    {"what becomes of each power's orders and why, before the game is written",
     "letters --try --orders s01.txt -o letters league.orb"},
});

/// Wide enough for a mail, and a third of the bytes of a whole map.
constexpr int MapWidth = 1000;

/// The directory, made where there is none.
void ExpectDirectory(const std::filesystem::path& directory) {
  std::error_code error;
  std::filesystem::create_directories(directory, error);
  if (std::filesystem::is_directory(directory, error)) return;
  throw model::FatalError("The letters need a directory: " + directory.string() + " is none.");
}

/// The files of one letter: "DIR/NAME-letter-FRA.txt" and the like.
std::filesystem::path FileOf(const GamePaths& paths, const letters::Letter& letter,
                             std::string_view extension) {
  std::string name = std::filesystem::path(paths.Game).stem().string();
  name.append("-letter-").append(letter.Power).append(extension);
  return paths.Output / name;
}

int Execute(const CommandLine& line, Console& console) {
  const session::Rules rules = RulesOf(line);
  const settings::MapOptions options{ModeOf(line, "colour"), false, true, true};
  const std::filesystem::path data = DataDirectory(line);
  OrdersSource orders(line);
  return ForEachGame(line, console, PlanOneOutput(line), [&](GameAtWork& at) {
    SayLeftOut(console, at.Paths, orders.Take(at.Situation, at.Paths, at.Messages));
    at.Situation.Rules = rules;
    at.Situation = session::ToldByFilesBeside(std::move(at.Situation));
    if (line.Has(OptionId::Try)) at.Situation = session::TryOut(at.Situation);
    ExpectDirectory(at.Paths.Output);
    const std::vector<letters::Letter> all = letters::Letters(at.Situation);
    for (const letters::Letter& letter : all)
      DeliverText(console, FileOf(at.Paths, letter, ".txt"), letter.Text, at.Paths.Existing);
    // The maps come last: the texts are of use without them, where no map can be drawn.
    for (const letters::Letter& letter : all) {
      DeliverBytes(console, FileOf(at.Paths, letter, ".png"),
                   render::DrawMap({at.Situation.Game, options, data, MapWidth,
                                    render::MapFormat::Png, letter.Orders},
                                   model::ProgramDirectory()),
                   at.Paths.Existing);
    }
    return true;
  });
}

}  // namespace

const Command LettersCommand{
    .Name = "letters",
    .Summary = "writes a letter to each power, with a map of its own orders",
    .Takes = Games::One,
    .Options = Options,
    .Examples = Examples,
    .Undrawn = "without maps here",
    .OutputName = "DIR",
    .Execute = Execute,
};

}  // namespace orb::cli
