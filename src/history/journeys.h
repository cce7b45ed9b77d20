#pragma once

#include "model/map.h"
#include "orders/order_outcome.h"

#include <string>
#include <vector>

namespace orb::history {

/// What one unit does while a season is replayed: it moves, then it is pushed aside and retreats,
/// then it is built or vanishes; most do only one of these. Locations are whole abbreviations.
struct Journey {
  std::string Power;
  std::string UnitType;             ///< "A" or "F"
  std::string From;                 ///< where it stands at first; of a new unit where it appears
  std::string Aim;                  ///< where its move heads; empty: it stays
  std::vector<std::string> Fleets;  ///< that carry the move, in the order in which it meets them
  bool Bounces = false;             ///< the move fails: half-way and back
  bool DislodgedAtFirst = false;    ///< it stands aside from the beginning
  bool Dislodged = false;           ///< it is pushed aside at the end of the moves
  std::string Retreat;              ///< where it goes from aside; empty: nowhere
  bool Appears = false;             ///< it is built at the end
  bool Vanishes = false;            ///< from aside instead of retreating, else at the end
};

/// Whether it makes a move that succeeds.
bool HasMoved(const Journey& journey);

/// Where a unit stood and where it stands.
struct UnitChange {
  std::string Power;
  std::string UnitType;
  std::string From;  ///< empty: it did not exist
  std::string To;    ///< empty: it no longer exists
  bool DislodgedAtFirst = false;
  bool DislodgedAtLast = false;
  bool MayHaveRetreated = false;  ///< it has been dislodged, and no move was aimed at To
};

/// How the units came from their first to their last places. Orders tell of failed moves, of
/// convoys and of units that are gone; one not resolved (Entered) counts as carried out where the
/// units' places agree with it. Orders for other units or to unknown places are ignored.
std::vector<Journey> FindJourneys(const model::Map& map, const std::vector<UnitChange>& changes,
                                  const std::vector<orders::OrderOutcome>& orders);

/// Whether the order is one of the moves stage.
bool IsMovesStageOrder(const orders::OrderOutcome& order);

}  // namespace orb::history
