#include "adjudication/usual/removals.h"

#include "model/counts.h"
#include "model/lookups.h"

#include <bitset>
#include <tuple>

namespace orb::adjudication::usual {
namespace {

using model::Map;
using model::UnitType;

using Places = std::bitset<model::ProvinceBound + 1>;

/// More moves than any way on the map takes.
constexpr int OutOfReach = model::ProvinceBound + 1;

/// The rows that the neighbours of the row in a table come to.
void AddNeighbours(const model::Adjacency& table, int row, Places& reached) {
  for (const int neighbour : table[static_cast<std::size_t>(row - 1)]) {
    if (neighbour == 0) return;
    reached.set(static_cast<std::size_t>(neighbour));
  }
}

/// All rows that are the same place as one of these.
Places WithCoasts(const Map& map, const Places& rows) {
  Places places;
  for (int row = 1; row <= map.Provinces.Count(); ++row) {
    if (rows.test(static_cast<std::size_t>(row)))
      places.set(static_cast<std::size_t>(map.Places[row]));
  }
  Places all;
  for (int row = 1; row <= map.Provinces.Count(); ++row) {
    const auto place = static_cast<std::size_t>(map.Places[row]);
    all.set(static_cast<std::size_t>(row), places.test(place));
  }
  return all;
}

/// Where a unit of the type can be one move later: armies in whole provinces, over land and water.
Places OneMoveOn(const Map& map, UnitType type, const Places& from) {
  Places reached = from;
  for (int row = 1; row <= map.Provinces.Count(); ++row) {
    if (!from.test(static_cast<std::size_t>(row))) continue;
    AddNeighbours(map.FleetAdjacency, row, reached);
    if (type == UnitType::Army) AddNeighbours(map.ArmyAdjacency, row, reached);
  }
  return type == UnitType::Army ? WithCoasts(map, reached) : reached;
}

/// The places of the centres that the power owns, coasts included.
Places OwnedCentres(const model::GameState& game, std::string_view power) {
  Places centres;
  for (int row = 1; row <= game.Provinces.Count(); ++row) {
    if (model::IsCentre(*game.Map, row) && game.Provinces[row].Owner == power)
      centres.set(static_cast<std::size_t>(row));
  }
  return WithCoasts(*game.Map, centres);
}

int Distance(const Map& map, const orders::Piece& piece, const Places& centres) {
  Places reached;
  if (piece.Location != 0) reached.set(static_cast<std::size_t>(piece.Location));
  if (piece.UnitType == UnitType::Army) reached = WithCoasts(map, reached);
  for (int moves = 0; moves < OutOfReach; ++moves) {
    if ((reached & centres).any()) return moves;
    const Places next = OneMoveOn(map, piece.UnitType, reached);
    if (next == reached) break;
    reached = next;
  }
  return OutOfReach;
}

}  // namespace

int ChooseRemoval(const model::GameState& game, const orders::Pieces& pieces,
                  orders::UnitSet units) {
  const Map& map = *game.Map;
  const Places centres = OwnedCentres(game, model::PowerName(pieces[units.First()].Power));
  const auto rank = [&](int unit) {
    const orders::Piece& piece = pieces[unit];
    const std::string_view name =
        piece.Location == 0 ? std::string_view{} : map.Provinces[piece.Location].FullName;
    return std::tuple(-Distance(map, piece, centres), piece.UnitType == UnitType::Army, name);
  };
  int chosen = units.First();
  for (const int unit : units) {
    if (rank(unit) < rank(chosen)) chosen = unit;
  }
  return chosen;
}

}  // namespace orb::adjudication::usual
