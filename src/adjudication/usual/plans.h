#pragma once

#include "adjudication/resolution.h"
#include "orders/waters.h"

#include <array>

namespace orb::adjudication::usual {

using orders::UnitSet;

/// What one unit is to do, the unit of an impossible order holding. Places are numbered by their
/// first row of the map, units by their index; 0 is none.
struct Plan {
  orders::OrderKind Kind = orders::OrderKind::Hold;
  bool ByConvoy = false;  ///< its move is carried by fleets
  std::int16_t Power = 0;
  std::int16_t Place = 0;  ///< where it stands
  std::int16_t Aim = 0;    ///< where its move leads; the place that its support is directed into
  std::int16_t Order = 0;  ///< the row of its order
  std::int8_t Other = 0;   ///< the unit whose order its support or convoy matches
};

/// What all units are to do, and who has to do with whom.
struct Plans {
  int Count = 0;
  std::array<Plan, model::UnitBound + 1> Units;
  std::array<UnitSet, model::CountryCount + 1> OfPower;     ///< the units of each power
  std::array<std::int8_t, model::ProvinceBound + 1> At{};   ///< the unit in each place
  std::array<UnitSet, model::ProvinceBound + 1> MovesInto;  ///< the moves to each place
  std::array<UnitSet, model::UnitBound + 1> SupportersOf;   ///< whose support matches its order
  std::array<UnitSet, model::UnitBound + 1> CarriersOf;     ///< fleets ordered to convoy its move
  UnitSet Moves;                                            ///< units with a possible move
  UnitSet Supports;                                         ///< units with a support that matches
  UnitSet Convoyed;                                         ///< units whose move goes by convoy
  orders::Waters Waters;

  const Plan& Of(int unit) const { return Units[static_cast<std::size_t>(unit)]; }
  int UnitAt(int place) const { return At[static_cast<std::size_t>(place)]; }
  UnitSet MovesTo(int place) const { return MovesInto[static_cast<std::size_t>(place)]; }
  UnitSet Supporters(int unit) const { return SupportersOf[static_cast<std::size_t>(unit)]; }
  UnitSet Carriers(int unit) const { return CarriersOf[static_cast<std::size_t>(unit)]; }
  UnitSet UnitsOf(int power) const { return OfPower[static_cast<std::size_t>(power)]; }
};

/// Whether two units each move to where the other stands, neither by convoy.
bool IsHeadToHead(const Plans& plans, int unit, int other);

/// Makes the plans of the moves from orders that have been read as meant: rejects impossible ones,
/// finds out which moves go by convoy, and which supports and convoys match.
Plans MakePlans(Resolution& resolution);

}  // namespace orb::adjudication::usual
