#pragma once

#include "model/game_state.h"

#include <string>
#include <string_view>
#include <vector>

// Editing the position by hand. Each change returns an empty text, or the sentence that says why it
// is refused, and then nothing is changed. The lists of orders are left alone. Units are named by
// their index 1..count; another one throws IndexOutOfRange.

namespace orb::model {

/// "Paris (Par)": a location by its row, as sentences name it.
std::string PlaceName(const model::Map& map, int row);

/// The rows of the locations of that place in which a unit of the type can stand: a fleet's coasts.
std::vector<int> StandingPlaces(const model::Map& map, std::string_view unitType,
                                std::string_view location);

/// A unit that is in place and of which nothing more is known.
model::Unit NewUnit(std::string_view power, std::string_view unitType, std::string_view location);

/// Why there cannot be such a unit instead of the one with this index (0: in addition to all that
/// there are); empty: there can. A place holds at most one unit in place and one dislodged unit.
std::string UnitFault(const model::GameState& game, const model::Unit& wanted, int replaced);

/// Why the unit cannot be moved to the location; empty: it can.
std::string MoveFault(const model::GameState& game, int unit, std::string_view location);

/// The new unit is the last one.
std::string AddUnit(model::GameState& game, const model::Unit& unit);

/// Everything else about the unit stays, even that it is dislodged.
std::string MoveUnit(model::GameState& game, int unit, std::string_view location);

void RemoveUnit(model::GameState& game, int unit);

std::string ChangeUnit(model::GameState& game, int unit, const model::Unit& wanted);

/// Gives the supply centre in that row of the map to a power; to none with an empty text.
std::string GiveCentre(model::GameState& game, int row, std::string_view power);

/// The owner of a location that is no supply centre stays as it is. Contested is a whole place: a
/// province with its coasts.
std::string ChangeProvince(model::GameState& game, int row, std::string_view owner, bool contested);

}  // namespace orb::model
