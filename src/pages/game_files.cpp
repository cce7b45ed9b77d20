#include "pages/game_files.h"

#include "history/unit_matching.h"
#include "model/errors.h"
#include "session/commands.h"

#include <algorithm>
#include <filesystem>
#include <system_error>
#include <utility>

namespace orb::pages {
namespace {

namespace fs = std::filesystem;

/// More files than a game can have are somebody's archive, which nobody waits for.
constexpr std::size_t MostFiles = 400;

std::vector<fs::path> GameFilesIn(const fs::path& folder) {
  std::vector<fs::path> files;
  std::error_code error;
  for (fs::directory_iterator at(folder, error), end; !error && at != end; at.increment(error)) {
    if (at->path().extension() == ".orb" && files.size() < MostFiles) files.push_back(at->path());
  }
  std::ranges::sort(files);
  return files;
}

}  // namespace

std::vector<Source> FilesBeside(const session::Situation& situation) {
  const model::GameState& game = situation.Game;
  std::vector<Source> sources;
  if (game.FileName.empty()) return sources;
  const fs::path own = game.FileName;
  const fs::path folder = own.parent_path().empty() ? "." : own.parent_path();
  for (const fs::path& file : GameFilesIn(folder)) {
    std::error_code ignored;
    if (fs::equivalent(file, own, ignored)) continue;
    Source source;
    source.Situation.Game = model::EmptyGame(game.Map);
    source.Situation.Game.Countries = game.Countries;
    source.Situation.Rules = situation.Rules;
    model::Consent messages;
    try {
      if (!session::ReadGame(source.Situation, file, messages)) continue;
    } catch (const model::FatalError&) {
      continue;
    }
    const model::GameState& other = source.Situation.Game;
    const int seasons = history::SeasonsBetween(other, game);
    const bool isEarlier = seasons > 0 || (seasons == 0 && other.Stage <= game.Stage);
    if (other.Title == game.Title && isEarlier) sources.push_back(std::move(source));
  }
  return sources;
}

}  // namespace orb::pages
