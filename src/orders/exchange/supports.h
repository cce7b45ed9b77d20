#pragma once

#include "orders/exchange/known_game.h"

#include <vector>

namespace orb::exchange {

/// An order that was completed from what is known of the game.
struct Completed {
  PlainOrder Order;
  std::string Objection;
};

/// The support and convoy orders that a written one can mean when its own unit is meant so. A
/// support that does not say what the other unit does is one to hold, unless the same text orders
/// that unit to move; one that names a place alone is for the unit there, or for the only one that
/// can move there. Without any, the fault says why.
std::vector<Completed> SupportsMeant(const WrittenOrder& written, const UnitMeant& unit,
                                     const KnownGame& known, Fault& fault);
std::vector<Completed> ConvoysMeant(const WrittenOrder& written, const UnitMeant& unit,
                                    const KnownGame& known, Fault& fault);

/// The beginning of any order of the unit.
PlainOrder OrderOf(const model::Unit& unit, orders::OrderKind kind);

}  // namespace orb::exchange
