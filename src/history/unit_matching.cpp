#include "history/unit_matching.h"

#include "model/lookups.h"

#include <algorithm>
#include <vector>

namespace orb::history {
namespace {

using model::GameState;
using model::Unit;

/// Both situations, and which units are matched so far.
struct Matching {
  const GameState& Earlier;
  const GameState& Later;
  UnitMatches Matches{};
  std::array<bool, model::UnitBound + 1> Taken{};  ///< rows of the later situation
};

int& MatchOf(Matching& matching, int earlier) {
  return matching.Matches[static_cast<std::size_t>(earlier)];
}

bool& Taken(Matching& matching, int later) {
  return matching.Taken[static_cast<std::size_t>(later)];
}

/// Whether two rows that are still free may be the same unit: units change neither power nor type.
bool MayBeOne(Matching& matching, int earlier, int later) {
  const Unit& a = matching.Earlier.Units[earlier];
  const Unit& b = matching.Later.Units[later];
  return MatchOf(matching, earlier) == 0 && !Taken(matching, later) && a.Power == b.Power &&
         a.UnitType == b.UnitType;
}

void Match(Matching& matching, int earlier, int later) {
  MatchOf(matching, earlier) = later;
  Taken(matching, later) = true;
}

/// Matches every pair of free rows that fits, in row order.
template <class Fits>
void MatchThose(Matching& matching, Fits fits) {
  for (int i = 1; i <= matching.Earlier.Units.Count(); ++i) {
    for (int k = 1; k <= matching.Later.Units.Count(); ++k) {
      if (MayBeOne(matching, i, k) && fits(matching.Earlier.Units[i], matching.Later.Units[k])) {
        Match(matching, i, k);
      }
    }
  }
}

/// The number, two a year, of the season whose starting positions the previous locations record:
/// before the moves that is still the season before.
int RecordedSeason(const GameState& game) {
  const int season = game.Year * 2 + (game.Season == "Spring" ? 0 : 1);
  return game.Stage == model::Stage::Moves ? season - 1 : season;
}

struct Pair {
  int Earlier, Later;
  double Distance;
};

bool AnyStartKnown(const GameState& game) {
  return std::any_of(game.Units.begin(), game.Units.end(),
                     [&](const Unit& unit) { return HasKnownStart(*game.Map, unit); });
}

/// Matches what is left by distance, the shortest first. Where starts are recorded at all, a unit
/// without one was built meanwhile and is nobody's continuation.
void MatchNearest(Matching& matching, bool recorded) {
  const model::Map& map = *matching.Later.Map;
  const auto& units = matching.Later.Units;
  std::vector<Pair> pairs;
  for (int i = 1; i <= matching.Earlier.Units.Count(); ++i) {
    for (int k = 1; k <= units.Count(); ++k) {
      const bool built = recorded && units[k].PreviousLocation.empty();
      if (built || !MayBeOne(matching, i, k)) continue;
      const model::Province& from = model::PlaceOf(map, matching.Earlier.Units[i].Location);
      pairs.push_back({i, k, model::UnitDistance(from, model::PlaceOf(map, units[k].Location))});
    }
  }
  std::stable_sort(pairs.begin(), pairs.end(),
                   [](const Pair& a, const Pair& b) { return a.Distance < b.Distance; });
  for (const Pair& pair : pairs) {
    if (MayBeOne(matching, pair.Earlier, pair.Later)) Match(matching, pair.Earlier, pair.Later);
  }
}

}  // namespace

int SeasonsBetween(const GameState& earlier, const GameState& later) {
  return RecordedSeason(later) - RecordedSeason(earlier);
}

bool HasKnownStart(const model::Map& map, const Unit& unit) {
  return model::FindProvince(map, unit.PreviousLocation) != 0;
}

UnitMatches MatchUnits(const GameState& earlier, const GameState& later) {
  Matching matching{earlier, later};
  const int seasons = SeasonsBetween(earlier, later);
  // The surest sign comes first: what the file records. It reaches back one season only.
  MatchThose(matching, [&](const Unit& before, const Unit& after) {
    if (!HasKnownStart(*later.Map, after)) return false;
    if (seasons == 0) return before.PreviousLocation == after.PreviousLocation;
    return seasons == 1 && before.Location == after.PreviousLocation;
  });
  // Then the units that have not moved. Over several seasons one may have been lost and a new one
  // built in the same place.
  const bool recorded = AnyStartKnown(later);
  MatchThose(matching, [&](const Unit& before, const Unit& after) {
    const bool built = seasons > 1 && recorded && after.PreviousLocation.empty();
    return before.Location == after.Location && !built;
  });
  MatchNearest(matching, recorded);
  return matching.Matches;
}

}  // namespace orb::history
