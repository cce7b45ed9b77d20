#include "pages/season.h"

#include "history/replay.h"
#include "model/seasons.h"
#include "session/queries.h"
#include "session/story.h"
#include "session/trial.h"

#include <algorithm>
#include <utility>

namespace orb::pages {
namespace {

using model::GameState;
using session::Situation;

bool IsSameSeason(const Source& a, const Source& b) {
  return a.Situation.Game.Year == b.Situation.Game.Year &&
         a.Situation.Game.Season == b.Situation.Game.Season;
}

/// Follows the situations of one season to its last one.
Situation Follow(const std::vector<Source>& sources) {
  Situation now = sources.front().Situation;
  bool resolves = sources.front().Resolves;
  for (std::size_t i = 1; i < sources.size(); ++i) {
    now = session::WithStory(sources[i].Situation, now);
    resolves = sources[i].Resolves;
  }
  return resolves && session::HasOrderLines(now.Game) ? session::TryOut(now) : now;
}

Season SeasonFrom(Situation now) {
  history::Replay replay = history::SeasonReplay(now.Game, now.Outcomes);
  Season season;
  season.Name = SeasonText(now.Game);
  season.Remark = std::string(session::RulesRemark(now));
  season.Start = std::move(replay.Start);
  season.End = std::move(replay.End);
  season.Journeys = std::move(replay.Journeys);
  season.Orders = std::move(now.Outcomes);
  season.Notes = std::move(now.Notes);
  return season;
}

/// A season of which only its beginning is there: what became of it, its successor's units tell.
Season SeasonUntil(const Situation& now, const GameState& next) {
  if (const auto led = session::LedTo(now, next)) return SeasonFrom(*led);
  history::Replay replay = history::ReplayBetween(now.Game, next);
  Season season = SeasonFrom(now);
  season.End.Units = replay.End.Units;
  season.End.Provinces = replay.End.Provinces;
  season.End.Stage = model::Stage::Finished;
  season.Journeys = std::move(replay.Journeys);
  return season;
}

}  // namespace

std::vector<Season> SeasonsOf(std::vector<Source> sources) {
  std::ranges::stable_sort(
      sources, {}, [](const Source& source) { return model::PlaceInTime(source.Situation.Game); });
  std::vector<std::vector<Source>> groups;
  for (Source& source : sources) {
    if (groups.empty() || !IsSameSeason(groups.back().front(), source)) groups.emplace_back();
    groups.back().push_back(std::move(source));
  }
  std::vector<Season> seasons;
  for (std::size_t i = 0; i < groups.size(); ++i) {
    Situation now = Follow(groups[i]);
    const bool isLast = i + 1 == groups.size();
    seasons.push_back(!isLast && now.Game.Stage == model::Stage::Moves
                          ? SeasonUntil(now, groups[i + 1].front().Situation.Game)
                          : SeasonFrom(std::move(now)));
  }
  return seasons;
}

}  // namespace orb::pages
