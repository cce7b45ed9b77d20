#include "history/timeline.h"

#include "history/sequence_names.h"
#include "model/errors.h"
#include "model/files.h"
#include "model/game_file.h"
#include "model/seasons.h"
#include "text/strings.h"

#include <algorithm>
#include <system_error>
#include <tuple>
#include <utility>

namespace orb::history {
namespace {

namespace fs = std::filesystem;

/// More files than a game can have are somebody's archive, which nobody waits for.
constexpr std::size_t MostFiles = 400;

/// Names as they are compared: systems that do not tell capitals apart write them as they like.
bool IsGameFile(const fs::path& file) {
  return text::LowerCase(file.extension().string()) == ".orb";
}

bool IsSameSeason(const Moment& a, const Moment& b) {
  return a.Year == b.Year && a.Season == b.Season;
}

}  // namespace

Moment MomentOf(const model::GameState& game) {
  return {game.Title, game.Season, game.Year, game.Stage, CountCentres(game), {}, {}};
}

std::optional<Moment> ReadMoment(const fs::path& file,
                                 const std::shared_ptr<const model::Map>& map) {
  std::error_code error;
  const fs::file_time_type written = fs::last_write_time(file, error);
  if (error) return std::nullopt;
  model::GameState game = model::EmptyGame(map);
  try {
    if (model::ParseGameFile(model::ReadFile(file), file.string(), game)) return std::nullopt;
  } catch (const model::FatalError&) {
    return std::nullopt;
  }
  Moment moment = MomentOf(game);
  moment.File = file;
  moment.Written = written;
  return moment;
}

std::vector<fs::path> FilesNamedAlike(const fs::path& file) {
  const auto series = SeriesName(file);
  const fs::path folder = file.has_parent_path() ? file.parent_path() : fs::path(".");
  std::vector<fs::path> files;
  std::error_code error;
  for (fs::directory_iterator at(folder, error), end; !error && at != end; at.increment(error)) {
    if (files.size() == MostFiles) break;
    if (IsGameFile(at->path()) && SeriesName(at->path()) == series) files.push_back(at->path());
  }
  return files;
}

bool IsSameStage(const Moment& a, const Moment& b) {
  return IsSameSeason(a, b) && a.Stage == b.Stage;
}

std::vector<Moment> Timeline(std::vector<Moment> moments, const Moment& present) {
  std::erase_if(moments, [&](const Moment& moment) {
    return moment.Title != present.Title || IsSameStage(moment, present);
  });
  moments.push_back(present);
  std::ranges::sort(moments, [](const Moment& a, const Moment& b) {
    return std::tuple(model::PlaceInTime(a), b.Written, a.File) <
           std::tuple(model::PlaceInTime(b), a.Written, b.File);
  });
  moments.erase(std::unique(moments.begin(), moments.end(), IsSameStage), moments.end());
  return moments;
}

std::vector<SeasonCentres> CentresOverTime(const std::vector<Moment>& moments) {
  std::vector<SeasonCentres> seasons;
  for (std::size_t i = 0; i < moments.size(); ++i) {
    const Moment& moment = moments[i];
    if (i + 1 < moments.size() && IsSameSeason(moment, moments[i + 1])) continue;
    seasons.push_back(
        {moment.Season + " " + std::to_string(moment.Year), moment.Year, moment.Centres});
  }
  return seasons;
}

}  // namespace orb::history
