#pragma once

#include "orders/order_line.h"

#include <cstdint>
#include <string>

namespace orb::orders {

/// How an order came out, as far as a picture tells it.
enum class Outcome : std::uint8_t {
  Entered,    ///< not resolved yet
  Succeeded,  ///< also a hold or support that served
  Failed,     ///< bounced, lost its convoy, or its unit was dislodged
  Cut,        ///< a support that an attack cut
  Void,       ///< took no part: faulty, impossible, without its unit or not used
};

/// An order apart from the tables that it came from: what maps and animations show of it.
/// Locations are whole abbreviations, coast included.
struct OrderOutcome {
  std::string Power;
  std::string UnitType;  ///< "A" or "F"
  std::string Location;  ///< of the unit when it was ordered; of a build
  OrderKind Kind = OrderKind::None;
  std::string OtherLocation;  ///< of the supported or convoyed unit; else empty
  std::string Destination;    ///< of the move, also the supported or convoyed one; else empty
  bool ViaConvoy = false;     ///< the move is carried by a fleet
  orders::Outcome Outcome = Outcome::Entered;
  bool Unordered = false;  ///< nobody wrote it: the unit holds or disbands for lack of an order

  bool operator==(const OrderOutcome&) const = default;
};

/// What an order says, with the given outcome; what could not be read is empty.
OrderOutcome OutcomeOf(const model::Map& map, const OrderLine& order, Outcome outcome);

}  // namespace orb::orders
