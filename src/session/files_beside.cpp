#include "session/files_beside.h"

#include "model/errors.h"
#include "model/seasons.h"
#include "session/commands.h"
#include "session/story.h"

#include <algorithm>
#include <filesystem>
#include <system_error>
#include <utility>

namespace orb::session {
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

/// Whether a unit of the later situation can be the earlier one: both know where it stood before
/// the moves of their season, and only a dislodged unit has gone on from there since.
bool MayBe(const model::Unit& later, const model::Unit& earlier) {
  return later.Power == earlier.Power && later.UnitType == earlier.UnitType &&
         later.PreviousLocation == earlier.PreviousLocation &&
         (later.Location == earlier.Location || earlier.Status == model::Dislodged);
}

/// Whether the later situation of a season can have come from the earlier one, after its moves.
bool MayHaveLedTo(const model::GameState& earlier, const model::GameState& later) {
  const auto isKnown = [&](const model::Unit& unit) {
    // What was built has stood nowhere before.
    return unit.PreviousLocation.empty() ||
           std::ranges::any_of(earlier.Units,
                               [&](const model::Unit& other) { return MayBe(unit, other); });
  };
  const auto remains = [&](const model::Unit& unit) {
    return unit.Status == model::Dislodged ||
           std::ranges::any_of(later.Units,
                               [&](const model::Unit& other) { return MayBe(other, unit); });
  };
  const bool isAdjusted = later.Stage == model::Stage::Finished && later.Season != "Spring";
  return std::ranges::all_of(later.Units, isKnown) &&
         (isAdjusted || std::ranges::all_of(earlier.Units, remains));
}

/// The later one with the story of the earlier one, if that is its own.
void TakeStory(Situation& later, const Situation& earlier) {
  if (earlier.Game.Stage >= later.Game.Stage) return;
  if (!earlier.Notes.empty() && !MayHaveLedTo(earlier.Game, later.Game)) return;
  later = WithStory(std::move(later), earlier);
}

}  // namespace

std::vector<Situation> FilesBeside(const Situation& situation) {
  const model::GameState& game = situation.Game;
  std::vector<Situation> others;
  if (game.FileName.empty()) return others;
  const fs::path own = game.FileName;
  const fs::path folder = own.parent_path().empty() ? "." : own.parent_path();
  for (const fs::path& file : GameFilesIn(folder)) {
    std::error_code ignored;
    if (fs::equivalent(file, own, ignored)) continue;
    Situation other;
    other.Game = model::EmptyGame(game.Map);
    other.Game.Countries = game.Countries;
    other.Rules = situation.Rules;
    model::Consent messages;
    try {
      if (!ReadGame(other, file, messages)) continue;
    } catch (const model::FatalError&) {
      continue;
    }
    const bool isLater = model::PlaceInTime(other.Game) > model::PlaceInTime(game);
    if (other.Game.Title == game.Title && !isLater) others.push_back(std::move(other));
  }
  return others;
}

Situation ToldByFilesBeside(Situation situation) {
  if (!situation.Notes.empty() || situation.Game.Stage == model::Stage::Moves) return situation;
  std::vector<Situation> files = FilesBeside(situation);
  std::erase_if(files, [&](const Situation& file) {
    return file.Game.Year != situation.Game.Year || file.Game.Season != situation.Game.Season;
  });
  std::ranges::stable_sort(files, {}, [](const Situation& file) { return file.Game.Stage; });
  for (std::size_t i = 0; i < files.size(); ++i) {
    for (std::size_t earlier = i; earlier-- > 0 && files[i].Notes.empty();)
      TakeStory(files[i], files[earlier]);
  }
  for (std::size_t i = files.size(); i-- > 0 && situation.Notes.empty();)
    TakeStory(situation, files[i]);
  return situation;
}

}  // namespace orb::session
