#pragma once

#include "model/game_state.h"
#include "model/unit_type.h"

#include <string>
#include <string_view>

namespace orb::model {

/// "ENG A(Lon)": a unit as order lines begin.
std::string UnitText(const model::Unit& unit);

/// The location with this abbreviation. Throws IndexOutOfRange for one that is not on the map.
const Province& PlaceOf(const Map& map, std::string_view location);

/// How far apart units in the two places are drawn, in widths and heights of the map.
double UnitDistance(const Province& a, const Province& b);

/// The last unit, in index order, that stands in the same place as the location; 0 if none.
int FindUnitAt(const model::GameState& game, std::string_view location);

/// Whether a unit of the type ("A" or "F") can move from one location to the other; both are
/// whole abbreviations, so a fleet's coast matters. False for unknown locations and other types.
bool IsAdjacent(const model::Map& map, std::string_view unitType, std::string_view from,
                std::string_view to);

/// Whether a unit of the type can stand in the location: it has a connection of that type there.
bool CanStandIn(const model::Map& map, std::string_view unitType, std::string_view location);

/// Whether the unit can move into the target's province or any of its coasts.
bool CanSupportInto(const model::Map& map, const model::Unit& unit, std::string_view target);

// The same by rows of the map; row 0 is no location.

int FindUnitAt(const GameState& game, int row);
bool IsAdjacent(const Map& map, UnitType type, int from, int to);
bool CanStandIn(const Map& map, UnitType type, int row);
bool CanSupportInto(const Map& map, UnitType type, int from, int target);

/// Whether a land place touches water: armies can stand in the row, and fleets in it or on a coast.
bool IsCoastal(const Map& map, int row);

/// Whether two rows are the same place: a province and its coasts.
inline bool IsSamePlace(const Map& map, int a, int b) {
  return a != 0 && b != 0 && map.Places[a] == map.Places[b];
}

}  // namespace orb::model
