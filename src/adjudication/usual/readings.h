#pragma once

#include "adjudication/resolution.h"
#include "orders/waters.h"

namespace orb::adjudication::usual {

// Orders as they are written, and which unit and place each of them means. Lines of the text form
// are read more widely than by ORB's own rules:
// - The ordered unit is known by power, type and province; its coast may be missing or wrong.
// - A fleet's destination with several coasts and none named is the only one that it can reach; if
//   it can reach several, the order is impossible. A coast of an army's destination is ignored.
// - Supports and convoys name the other unit by power, type and province, the destination by
//   province; a support may name the coast of a fleet's destination.
// - Lines for one unit that mean the same count once. Lines that differ make it hold, even if only
//   one of them is possible.
// - A line that is not in the text form, or for a unit that is not there, is no order.

/// The unit of the power and type in the piece's province, in the retreats a dislodged one; of
/// several the one in its very location, else the last. 0: none.
int UnitMeant(const Resolution& resolution, const orders::Piece& named);

/// The row of the map that a unit of the type means when it names this destination.
int DestinationMeant(const model::Map& map, model::UnitType type, int from, int named);

/// Where a unit is moved from: armies stand in provinces, fleets in locations.
int StandingPlace(const model::Map& map, const orders::Piece& piece);

/// Ties each line to its unit and puts what it means in place of what it names, for the orders of
/// moves and retreats: rejects those that are no order, and all for a unit whose lines contradict
/// each other. Of lines that mean the same the first stands; MirrorRepeats does the others.
void ReadAsMeant(Resolution& resolution);

/// Lines that say what another line says come out as that one did.
void MirrorRepeats(Resolution& resolution);

/// For each unit the row of the line that counts; a hold is supplied where nobody wrote any.
void FindStandingOrders(Resolution& resolution);

// Possible orders. The unit of an impossible one holds.

/// To another province where that type can stand, that is adjacent, or that an army could reach by
/// convoy over some chain of water places that hold fleets.
bool IsPossibleMove(const model::Map& map, const orders::Waters& waters,
                    const orders::OrderLine& order);

/// Into a province to which the supporter could move, on whichever coast and without a convoy. No
/// unit supports itself.
bool IsPossibleSupport(const model::Map& map, const orders::OrderLine& order);

/// By a fleet in a water place, of an army that stands in a coastal place, to another one.
bool IsPossibleConvoy(const Resolution& resolution, const orders::OrderLine& order);

}  // namespace orb::adjudication::usual
