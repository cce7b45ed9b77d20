#include "model/lookups.h"

#include "model/place.h"

#include <array>
#include <cmath>
#include <cstdint>

namespace orb::model {
namespace {

using Row = std::array<std::int16_t, NeighbourBound>;

/// The neighbours of the location for the unit type; nothing for row 0 and no type.
const Row* NeighbourRow(const Map& map, UnitType type, int row) {
  if (row == 0 || type == UnitType::None) return nullptr;
  const auto& table = type == UnitType::Army ? map.ArmyAdjacency : map.FleetAdjacency;
  return &table[static_cast<std::size_t>(row - 1)];
}

template <class Matches>
bool AnyNeighbour(const Row* row, Matches matches) {
  if (row == nullptr) return false;
  for (const int neighbour : *row) {
    if (neighbour == 0) return false;
    if (matches(neighbour)) return true;
  }
  return false;
}

}  // namespace

std::string UnitText(const model::Unit& unit) {
  std::string text = unit.Power;
  return text.append(" ").append(unit.UnitType).append("(").append(unit.Location).append(")");
}

const Province& PlaceOf(const Map& map, std::string_view location) {
  return map.Provinces[FindProvince(map, location)];
}

double UnitDistance(const Province& a, const Province& b) {
  return std::hypot(static_cast<double>(a.UnitX) - b.UnitX, static_cast<double>(a.UnitY) - b.UnitY);
}

int FindUnitAt(const model::GameState& game, std::string_view location) {
  // From the end, since the last unit counts: of a dislodged unit and its attacker, the later row.
  for (int i = game.Units.Count(); i >= 1; --i) {
    if (model::SamePlace(game.Units[i].Location, location)) return i;
  }
  return 0;
}

int FindUnitAt(const GameState& game, int row) {
  return row == 0 ? 0 : FindUnitAt(game, LocationName(*game.Map, row));
}

bool IsAdjacent(const Map& map, UnitType type, int from, int to) {
  return to != 0 && AnyNeighbour(NeighbourRow(map, type, from),
                                 [to](int neighbour) { return neighbour == to; });
}

bool CanStandIn(const Map& map, UnitType type, int row) {
  const Row* neighbours = NeighbourRow(map, type, row);
  return neighbours != nullptr && neighbours->front() != 0;
}

bool IsCoastal(const Map& map, int row) {
  if (!CanStandIn(map, UnitType::Army, row)) return false;
  for (int coast = 1; coast <= map.Provinces.Count(); ++coast) {
    if (IsSamePlace(map, coast, row) && CanStandIn(map, UnitType::Fleet, coast)) return true;
  }
  return false;
}

bool CanSupportInto(const Map& map, UnitType type, int from, int target) {
  return AnyNeighbour(NeighbourRow(map, type, from),
                      [&](int neighbour) { return IsSamePlace(map, neighbour, target); });
}

bool IsAdjacent(const Map& map, std::string_view unitType, std::string_view from,
                std::string_view to) {
  return IsAdjacent(map, UnitTypeOf(unitType), FindProvince(map, from), FindProvince(map, to));
}

bool CanStandIn(const Map& map, std::string_view unitType, std::string_view location) {
  return CanStandIn(map, UnitTypeOf(unitType), FindProvince(map, location));
}

bool CanSupportInto(const Map& map, const Unit& unit, std::string_view target) {
  const int from = FindProvince(map, unit.Location);
  return AnyNeighbour(NeighbourRow(map, UnitTypeOf(unit.UnitType), from), [&](int neighbour) {
    return SamePlace(map.Provinces[neighbour].Name, target);
  });
}

}  // namespace orb::model
