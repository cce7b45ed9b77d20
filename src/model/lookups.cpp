#include "model/lookups.h"

#include "model/place.h"

#include <array>
#include <cmath>
#include <cstdint>

namespace orb::model {
namespace {

using Row = std::array<std::int16_t, model::NeighbourBound>;

/// The location's row in the table of the unit type; nothing for other types and locations.
const Row* NeighbourRow(const model::Map& map, std::string_view unitType,
                        std::string_view location) {
  const int province = model::FindProvince(map, location);
  if (province == 0 || (unitType != "A" && unitType != "F")) return nullptr;
  const auto& table = unitType == "A" ? map.ArmyAdjacency : map.FleetAdjacency;
  return &table[static_cast<std::size_t>(province - 1)];
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
  for (int i = game.Units.Count(); i >= 1; --i) {
    if (model::SamePlace(game.Units[i].Location, location)) return i;
  }
  return 0;
}

bool IsAdjacent(const model::Map& map, std::string_view unitType, std::string_view from,
                std::string_view to) {
  const int destination = model::FindProvince(map, to);
  return destination != 0 && AnyNeighbour(NeighbourRow(map, unitType, from),
                                          [&](int neighbour) { return neighbour == destination; });
}

bool CanStandIn(const model::Map& map, std::string_view unitType, std::string_view location) {
  const Row* row = NeighbourRow(map, unitType, location);
  return row != nullptr && row->front() != 0;
}

bool CanSupportInto(const model::Map& map, const model::Unit& unit, std::string_view target) {
  const Row* row = NeighbourRow(map, unit.UnitType, unit.Location);
  return AnyNeighbour(
      row, [&](int neighbour) { return model::SamePlace(map.Provinces[neighbour].Name, target); });
}

}  // namespace orb::model
