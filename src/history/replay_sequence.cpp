#include "history/replay_sequence.h"

#include "history/unit_matching.h"

#include <algorithm>

namespace orb::history {
namespace {

using model::GameState;

bool IsBeforeMoves(const GameState& game) {
  return game.Stage == model::Stage::Moves;
}

std::string SeasonName(std::string_view season, int year) {
  return std::string(season).append(" ").append(std::to_string(year));
}

std::string OwnSeason(const GameState& game) {
  return SeasonName(game.Season, game.Year);
}

/// The last season whose moves led to the situation.
std::string PlayedSeason(const GameState& game) {
  if (!IsBeforeMoves(game)) return OwnSeason(game);
  return game.Season == "Spring" ? SeasonName("Autumn", game.Year - 1)
                                 : SeasonName("Spring", game.Year);
}

/// The first season whose moves lie behind the situation.
std::string NextSeason(const GameState& game) {
  if (IsBeforeMoves(game)) return OwnSeason(game);
  return game.Season == "Spring" ? SeasonName("Autumn", game.Year)
                                 : SeasonName("Spring", game.Year + 1);
}

/// The season between two situations, or the first and the last of several.
std::string NameBetween(const GameState& earlier, const GameState& later) {
  std::string last = PlayedSeason(later);
  return SeasonsBetween(earlier, later) > 1 ? NextSeason(earlier) + " - " + last : last;
}

bool Stays(const Journey& journey) {
  return journey.Aim.empty() && journey.Retreat.empty() && !journey.Dislodged && !journey.Appears &&
         !journey.Vanishes;
}

bool IsEventful(const Replay& replay) {
  return !std::all_of(replay.Journeys.begin(), replay.Journeys.end(), Stays);
}

}  // namespace

ReplayPart SeasonPart(const GameState& game, const std::vector<orders::OrderOutcome>& outcomes) {
  return {OwnSeason(game), SeasonReplay(game, outcomes)};
}

std::vector<ReplayPart> ReplaySequence(const std::vector<GameState>& games) {
  std::vector<ReplayPart> parts;
  // A first situation after its moves has its own season behind it.
  if (!games.empty() && !IsBeforeMoves(games.front())) parts.push_back(SeasonPart(games.front()));
  for (std::size_t i = 1; i < games.size(); ++i) {
    const GameState& earlier = games[i - 1];
    const GameState& later = games[i];
    ReplayPart part{NameBetween(earlier, later), ReplayBetween(earlier, later)};
    // A quiet season is still a season; two looks at the same one may differ in nothing.
    if (SeasonsBetween(earlier, later) != 0 || IsEventful(part.Replay)) {
      parts.push_back(std::move(part));
    }
  }
  return parts;
}

}  // namespace orb::history
