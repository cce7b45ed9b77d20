#include "history/game_series.h"

#include "history/replay.h"
#include "history/sequence_names.h"
#include "history/unit_matching.h"
#include "model/errors.h"
#include "model/files.h"
#include "model/game_file.h"

#include <utility>

namespace orb::history {
namespace {

namespace fs = std::filesystem;
using model::GameState;

/// Throws FatalError for a file that cannot be played, too.
GameState ReadGame(const fs::path& file, const GameState& current) {
  GameState game = model::EmptyGame(current.Map);
  game.Countries = current.Countries;
  const std::string name = file.string();
  if (const auto unknown = model::ParseGameFile(model::ReadFile(file), name, game)) {
    throw model::FileError(name + ": " + model::UnknownProvinceText(*unknown));
  }
  game.FileName = name;
  // Finds out now what would otherwise stop the animation when it reaches the season.
  static_cast<void>(SeasonReplay(game));
  return game;
}

void CheckOrder(const std::vector<GameState>& games, const GameState& next) {
  if (games.empty() || SeasonsBetween(games.back(), next) >= 0) return;
  throw model::FileError(next.FileName + ": It holds " + next.Season + " " +
                         std::to_string(next.Year) + ", which is before " +
                         fs::path(games.back().FileName).filename().string() + ".");
}

std::string NamesOf(const std::vector<fs::path>& files) {
  std::string names;
  for (const fs::path& file : files)
    names += (names.empty() ? "" : ", ") + file.filename().string();
  return names;
}

}  // namespace

GameSeries ReadGameSeries(const std::vector<fs::path>& files, const GameState& current) {
  const FileSequence sequence = SortBySeason(files);
  GameSeries series;
  if (!sequence.Unfit.empty()) {
    series.LeftOut = "No season (S01, A01) in the name of: " + NamesOf(sequence.Unfit) + ".\r";
  }
  for (const fs::path& file : sequence.Files) {
    try {
      GameState game = ReadGame(file, current);
      CheckOrder(series.Games, game);
      series.Games.push_back(std::move(game));
    } catch (const model::FatalError& fault) {
      // The other files are played all the same, and one message names all that do not fit.
      series.LeftOut += std::string(fault.what()) + "\r";
    }
  }
  return series;
}

}  // namespace orb::history
