#pragma once

#include "orders/order_line.h"

#include <cstdint>
#include <string>

namespace orb::orders {

/// A rule of the text form that an order breaks.
enum class SyntaxFault : std::uint8_t {
  None,
  Power,
  UnitType,
  Location,
  MoveVerb,        ///< the verb of an order of the moves stage
  RetreatVerb,     ///< the verb of an order of the retreats stage
  AdjustmentVerb,  ///< the verb of an order of the adjustments stage
  Destination,
  OtherPower,  ///< this and those that follow: of the supported or convoyed unit
  OtherUnitType,
  OtherLocation,
  OtherVerb,
  OtherDestination,
  FleetInland,  ///< a convoy by anything but a fleet at sea
  FleetCarried,
  ArmyStays,
};

/// The fault as words for the user, with the text that was not understood.
std::string FaultText(const OrderLine& order, SyntaxFault fault);

}  // namespace orb::orders
