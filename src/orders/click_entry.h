#pragma once

#include "model/game_state.h"

#include <string>
#include <string_view>

namespace orb::orders {

// Order lines are written by clicks on the map. A click is known by the location it hit; nothing
// is refused, and a click that means nothing leaves the line as it is.

/// A line of the moves stage that is being written.
struct OrderEntry {
  std::string Text;
  bool UnitExpected = true;      ///< the next click picks a unit
  std::string LastUnitLocation;  ///< of the unit that a click picked last
};

struct ClickKeys {
  bool Shift = false;  ///< the picked unit supports: the next click picks whom
  bool Ctrl = false;   ///< the picked unit convoys: the next click picks whom
};

/// The line after a click. It picks the unit that stands there, for a new line where this one is a
/// whole order; once a unit is picked, it appends where that unit moves to, or "hold " when it is
/// the unit's own location.
OrderEntry ClickOrder(const model::GameState& game, OrderEntry entry, std::string_view location,
                      ClickKeys keys);

/// The retreat line after a click. A line without a unit becomes that of the dislodged unit there;
/// else the unit written in it disbands when it is its own place, and retreats there otherwise.
std::string ClickRetreat(const model::GameState& game, const std::string& text,
                         std::string_view location);

/// The adjustment line after a click: the unit there is disbanded; in a home centre without a unit
/// one of the given type is built, inland an army. The verb of an unfinished line (one without a
/// ")") is kept.
std::string ClickAdjustment(const model::GameState& game, const std::string& text,
                            std::string_view location, std::string_view unitType);

/// The type before the last "(" of a line: that of the unit written last. Empty without a "(".
std::string_view LastUnitType(std::string_view text);

/// The line with this type ("A" or "F") as that of its first unit: it takes the place of the one
/// that is written, or is appended with its "(". An army loses its coast; a fleet where it needs
/// one ends the line at its point: "RUS build F(Stp.". An empty line stays empty.
std::string WithUnitType(const model::Map& map, const std::string& text, std::string_view unitType);

/// The coasts of the province at which such a line ends, "Stp.n, Stp.s"; empty for other lines.
std::string CoastsToChoose(const model::Map& map, std::string_view text);

}  // namespace orb::orders
