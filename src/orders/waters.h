#pragma once

#include "model/map.h"
#include "orders/pieces.h"
#include "orders/unit_set.h"

#include <array>

namespace orb::orders {

/// The fleets that stand in water places, and which of them touch each place: what convoys are made
/// of. Places are numbered by their first row of the map.
struct Waters {
  UnitSet Fleets;
  std::array<UnitSet, model::ProvinceBound + 1> Touching;
  std::array<std::int16_t, model::UnitBound + 1> Places{};  ///< of the fleets
};

/// Whether no army can stand anywhere in the place of that row, and fleets can.
bool IsWater(const model::Map& map, int row);

Waters FindWaters(const model::Map& map, const Pieces& pieces);

/// Whether a chain of these fleets leads from one place to the other: the first touches the start,
/// each the next one, and the last the target.
bool HasChain(const Waters& waters, UnitSet fleets, int from, int to);

/// Those of the fleets that a chain of them from the place reaches.
UnitSet FleetsWithin(const Waters& waters, UnitSet fleets, int from);

/// Whether such a chain leads through the fleet, passing nowhere twice.
bool HasChainThrough(const Waters& waters, UnitSet fleets, int fleet, int from, int to);

}  // namespace orb::orders
