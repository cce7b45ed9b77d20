#pragma once

#include "model/map.h"
#include "model/stage.h"
#include "model/unit_type.h"
#include "orders/order_kind.h"

#include <cstdint>
#include <string>
#include <string_view>

namespace orb::orders {

// An order line, its parts separated by single blanks. In the moves stage:
//   move             POWER TYPE(LOC) - DEST
//   hold             POWER TYPE(LOC) hold
//   support to hold  POWER TYPE(LOC) S [POWER] TYPE(LOC) hold
//   support of move  POWER TYPE(LOC) S [POWER] TYPE(LOC) - DEST
//   convoy           POWER F(LOC) C [POWER] A(LOC) - DEST
// In the retreats stage:
//   retreat          POWER TYPE(LOC) RETREAT DEST
//   disband          POWER TYPE(LOC) DISBAND
// In the adjustments stage:
//   build            POWER BUILD TYPE(LOC)
//   disband          POWER DISBAND TYPE(LOC)
// Order words may be in any case, and so may the power in the adjustments stage; everything else is
// spelled exactly. The power of the second unit is the ordering power when it is not written.

/// The parts of an order line as they are written. A part that is missing was cut from the filler
/// that ends every line, so that no check accepts it.
struct OrderWords {
  std::string_view Power;
  std::string_view UnitType;
  std::string_view Location;
  OrderKind Kind = OrderKind::None;
  std::string_view Power2;  ///< of the supported or convoyed unit, like UnitType2
  std::string_view UnitType2;
  std::string_view Target;  ///< destination; in a support or convoy the other unit's place
  OrderKind Kind2 = OrderKind::None;  ///< what the other unit does: Move or Hold
  std::string_view Target2;           ///< destination of the supported or convoyed move
};

/// Cuts a line into its parts at blanks and brackets. `work` holds what the parts refer to; it may
/// serve many lines in turn.
OrderWords CutOrder(std::string_view text, model::Stage stage, std::string& work);

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

/// What the parts of an order name: powers as rows 1..7, places as rows of the map; 0 stands for
/// what names none or is not written.
struct OrderParts {
  std::int8_t Power = 0;
  std::int8_t Power2 = 0;  ///< of the supported or convoyed unit
  model::UnitType UnitType = model::UnitType::None;
  model::UnitType UnitType2 = model::UnitType::None;
  OrderKind Kind = OrderKind::None;
  OrderKind Kind2 = OrderKind::None;      ///< what the other unit does: Move or Hold
  SyntaxFault Fault = SyntaxFault::None;  ///< the first rule of the text form that it breaks
  std::int16_t Location = 0;              ///< of the ordered unit
  std::int16_t Target = 0;   ///< destination; in a support or convoy the other unit's place
  std::int16_t Target2 = 0;  ///< destination of the supported or convoyed move
};

/// Looks up the parts of an order and finds the first rule of the stage's text form that it breaks.
OrderParts ReadParts(const model::Map& map, const OrderWords& order, model::Stage stage);

/// The fault as words for the user, with the text that was not understood.
std::string FaultText(const OrderWords& order, SyntaxFault fault);

}  // namespace orb::orders
