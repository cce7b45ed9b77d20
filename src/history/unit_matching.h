#pragma once

#include "model/game_state.h"

#include <array>

namespace orb::history {

/// How many seasons' moves lie between two situations.
int SeasonsBetween(const model::GameState& earlier, const model::GameState& later);

/// Whether the place where the unit stood before the last moves is recorded and on the map.
bool HasKnownStart(const model::Map& map, const model::Unit& unit);

/// For each unit row of the earlier situation that unit's row in the later one; 0: it is gone.
using UnitMatches = std::array<int, model::UnitBound + 1>;

/// Finds the units of one situation in another, each only once. Power and type must agree. Units
/// are the same when the later one's previous location leads to the earlier one; then when they
/// stand in the same location; then the nearest ones are, except for units that were built
/// meanwhile: those have an empty previous location where others have one. Throws IndexOutOfRange
/// for a unit whose location is not on the map.
UnitMatches MatchUnits(const model::GameState& earlier, const model::GameState& later);

}  // namespace orb::history
