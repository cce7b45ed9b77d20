#include "cli/command.h"
#include "cli/games.h"
#include "model/files.h"
#include "model/game_file.h"
#include "model/map_files.h"
#include "model/new_game.h"
#include "text/encoding.h"

namespace orb::cli {
namespace {

constexpr std::array Options{OptionId::Blank, OptionId::Title, OptionId::Output};

/// The 8-bit form of a title, which must go into a game file.
std::string TitleBytes(const std::string& title) {
  if (title.find_first_of("\"\r\n") != std::string::npos) {
    throw UsageError("new: A title with a double quote or a line end cannot be stored.");
  }
  auto bytes = text::ToWindows1252(title);
  if (!bytes) throw UsageError("new: The title has a character that game files cannot hold.");
  return *bytes;
}

int Execute(const CommandLine& line, Console& console) {
  const std::string& file = *line.Value(OptionId::Output);
  std::error_code ignored;
  if (file.empty() || std::filesystem::is_directory(file, ignored)) {
    throw UsageError("new: -o must name a file.");
  }
  std::optional<std::string> title;
  if (line.Has(OptionId::Title)) title = TitleBytes(*line.Value(OptionId::Title));
  const std::filesystem::path data = DataDirectory(line);
  const bool done = Attempt(console, file, [&] {
    model::GameState game = model::EmptyGame(model::LoadMap(data));
    line.Has(OptionId::Blank) ? model::BlankGame(game, data) : model::NewGame(game, data);
    if (title) game.Title = *title;
    model::ReplaceFile(file, model::FormatGameFile(game));
    return true;
  });
  return done ? ExitDone : ExitRefused;
}

}  // namespace

const Command NewCommand{"new", "writes the starting position (or the blank one) to a game file",
                         Games::None, Options, Execute};

}  // namespace orb::cli
