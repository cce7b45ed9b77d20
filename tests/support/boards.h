#pragma once

#include "model/game_state.h"

#include <string>
#include <string_view>
#include <vector>

namespace orb::tests {

/// The map of the data directory, loaded once.
std::shared_ptr<const model::Map> RealMap();

/// A situation of 1901 on the real map without units and owners, every place uncontested.
model::GameState EmptyBoard(std::string_view season, std::string_view stage);

/// Reads a unit as it is drawn at the start of a line: "FRA A(Bur)", and "FRA A(Bur) <Mun" when an
/// attack from Munich has dislodged it. The line keeps what follows. False, and nothing is read,
/// when the line does not begin with a unit in a known location.
bool ReadUnit(std::string_view& line, model::Unit& unit);

/// Adds the unit that the line begins with, unless it stands on the board already, and returns the
/// line as a player writes it: without "<Mun".
std::string AddDrawnUnit(model::GameState& game, std::string_view line);

/// A board whose lines begin with a unit; what follows it is its order. "> " begins an order alone.
model::GameState Board(std::string_view season, std::string_view stage,
                       const std::vector<std::string>& lines);

/// The orders of the stage that the game is in.
std::vector<std::string>& OrdersOf(model::GameState& game);

/// The live state of a place.
model::ProvinceState& Live(model::GameState& game, std::string_view place);

/// Gives places to a power: "FRA Par Mar".
void Own(model::GameState& game, std::string_view powerAndPlaces);

/// The units as they are drawn, one per line, in the order of the table.
std::string DrawUnits(const model::GameState& game);

/// All that a situation holds, as text: two situations are equal when their texts are.
std::string Describe(const model::GameState& game);

/// Names of the places with a mark that a move was aimed at them, in map order; a province stands
/// for its coasts, and a coast that differs from its province is named too.
std::string ContestedPlaces(const model::GameState& game);

std::vector<std::string> Words(std::string_view text);

template <int Bound>
std::vector<std::string> Lines(const model::Table<std::string, Bound>& table) {
  return {table.begin(), table.end()};
}

}  // namespace orb::tests
