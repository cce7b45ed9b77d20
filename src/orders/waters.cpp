#include "orders/waters.h"

#include "model/lookups.h"

namespace orb::orders {
namespace {

UnitSet& TouchingAt(Waters& waters, int place) {
  return waters.Touching[static_cast<std::size_t>(place)];
}
UnitSet TouchingAt(const Waters& waters, int place) {
  return waters.Touching[static_cast<std::size_t>(place)];
}

/// Those of the fleets that can be reached from these by way of each other, these included.
UnitSet Reached(const Waters& waters, UnitSet fleets, UnitSet from) {
  UnitSet reached;
  UnitSet next = fleets & from;
  while (!next.IsEmpty()) {
    reached = reached | next;
    UnitSet touched;
    for (const int fleet : next)
      touched = touched | TouchingAt(waters, waters.Places[static_cast<std::size_t>(fleet)]);
    next = (touched & fleets) - reached;
  }
  return reached;
}

}  // namespace

bool IsWater(const model::Map& map, int row) {
  bool fleetsStand = false;
  for (int other = 1; other <= map.Provinces.Count(); ++other) {
    if (!model::IsSamePlace(map, row, other)) continue;
    if (model::CanStandIn(map, model::UnitType::Army, other)) return false;
    fleetsStand = fleetsStand || model::CanStandIn(map, model::UnitType::Fleet, other);
  }
  return fleetsStand;
}

Waters FindWaters(const model::Map& map, const Pieces& pieces) {
  Waters waters;
  for (int u = 1; u <= pieces.Count(); ++u) {
    const Piece& piece = pieces[u];
    if (piece.UnitType != model::UnitType::Fleet || piece.Location == 0) continue;
    if (!IsWater(map, piece.Location)) continue;
    waters.Fleets.Add(u);
    waters.Places[static_cast<std::size_t>(u)] = map.Places[piece.Location];
    for (const int row : map.FleetAdjacency[static_cast<std::size_t>(piece.Location - 1)]) {
      if (row == 0) break;
      TouchingAt(waters, map.Places[row]).Add(u);
    }
  }
  return waters;
}

UnitSet FleetsWithin(const Waters& waters, UnitSet fleets, int from) {
  return Reached(waters, fleets, TouchingAt(waters, from));
}

bool HasChain(const Waters& waters, UnitSet fleets, int from, int to) {
  return !(FleetsWithin(waters, fleets, from) & TouchingAt(waters, to)).IsEmpty();
}

// Two ways that share no fleet, one to each end, are what makes a chain. By Menger's theorem there
// are such two where no single fleet cuts off both ends, and neither end alone is reached.
bool HasChainThrough(const Waters& waters, UnitSet fleets, int fleet, int from, int to) {
  if (!fleets.Has(fleet)) return false;
  UnitSet start;
  start.Add(fleet);
  const UnitSet reached = Reached(waters, fleets, start);
  const UnitSet atStart = TouchingAt(waters, from);
  const UnitSet atTarget = TouchingAt(waters, to);
  if ((reached & atStart).IsEmpty() || (reached & atTarget).IsEmpty()) return false;
  for (const int other : reached - start) {
    UnitSet without = fleets;
    without.Remove(other);
    const UnitSet left = Reached(waters, without, start);
    if ((left & (atStart | atTarget)).IsEmpty()) return false;
  }
  return true;
}

}  // namespace orb::orders
