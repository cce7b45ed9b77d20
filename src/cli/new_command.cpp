#include "cli/commands.h"
#include "cli/delivery.h"
#include "cli/games.h"
#include "model/map_files.h"
#include "model/record_file.h"
#include "session/commands.h"
#include "text/encoding.h"

#include <algorithm>
#include <array>

namespace orb::cli {
namespace {

constexpr std::array Options{OptionId::Blank, OptionId::Title, OptionId::Output,
                             OptionId::NoClobber};

constexpr auto Examples = std::to_array<Example>({
    {"begin a game", "new --title \"Winter league\" -o league.orb"},
    {"look at the starting position without a file", "new -o - | orbctl show -"},
});

/// The 8-bit form of a title.
std::string TitleBytes(const std::string& title) {
  if (!std::ranges::all_of(title, model::IsStorable)) {
    throw UsageError("new: A title with a double quote or a line end cannot be stored.");
  }
  auto bytes = text::ToWindows1252(title);
  if (!bytes) throw UsageError("new: The title has a character that game files cannot hold.");
  return *bytes;
}

int Execute(const CommandLine& line, Console& console) {
  const std::string& file = *line.Value(OptionId::Output);
  std::error_code ignored;
  // Unlike the other commands: there is no game read whose name a file in a directory could take.
  if (file.empty() || std::filesystem::is_directory(file, ignored)) {
    throw UsageError("new: -o must name a file.");
  }
  std::optional<std::string> title;
  if (line.Has(OptionId::Title)) title = TitleBytes(*line.Value(OptionId::Title));
  const std::filesystem::path data = DataDirectory(line);
  CheckNoDataFile(file, data);
  GamePaths paths;
  paths.Output = file;
  if (line.Has(OptionId::NoClobber)) paths.Existing = model::Existing::Kept;
  const bool done = Attempt(console, file, [&] {
    ExpectNothingToKeep(paths);
    ConsoleMessages messages(console, file, false);
    session::Situation situation{model::EmptyGame(model::LoadMap(data, messages))};
    line.Has(OptionId::Blank) ? session::BlankGame(situation, data)
                              : session::NewGame(situation, data);
    if (title) session::SetTitle(situation, *title);
    DeliverGame(console, situation, paths);
    return true;
  });
  return done ? ExitDone : ExitRefused;
}

}  // namespace

const Command NewCommand{
    .Name = "new",
    .Summary = "writes the starting position (or the blank one) to a game file",
    .Takes = Games::None,
    .Options = Options,
    .Examples = Examples,
    .OutputName = "GAME",
    .Execute = Execute,
};

}  // namespace orb::cli
