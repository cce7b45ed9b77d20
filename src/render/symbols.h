#pragma once

#include "model/game_state.h"
#include "render/paths.h"
#include "render/surface.h"
#include "settings/map_options.h"

#include <string_view>

// The symbols of the map. Points are fractions of the surface's width and height; a power is its
// row 1..7. Each leaves pen width 1, black pen and solid black filling behind.

namespace orb::render {

/// The scale of a unit that is dislodged; the others' is 1.
constexpr double DislodgedScale = 0.75;

/// What a unit's looks depend on apart from its power.
struct SymbolStyle {
  const model::CountryTable& Countries;
  settings::MapMode Mode;
  bool Letters = false;  ///< the power's initial in colour too
};

/// The style that a map's options ask for. The table must outlive it.
inline SymbolStyle StyleOf(const model::CountryTable& countries,
                           const settings::MapOptions& options) {
  return {countries, options.Mode, options.UnitLetters};
}

/// An army: a disc of 115 twips radius times the scale.
void DrawArmy(Surface& surface, const SymbolStyle& style, Point at, int power, double scale);

/// A fleet: a ship reaching 160 twips times the scale to either side.
void DrawFleet(Surface& surface, const SymbolStyle& style, Point at, int power, double scale);

/// An army for the unit type "A", for anything else a fleet.
void DrawUnit(Surface& surface, const SymbolStyle& style, std::string_view unitType, Point at,
              int power, double scale);

/// What a unit drawn at a point covers, both in twips.
Rectangle UnitBox(std::string_view unitType, Point centre, double scale);

/// Half the width of an attack's line, in twips.
constexpr double MoveLineReach = 2.5 * TwipsPerPixel;

/// The way of an attack.
void DrawMoveLine(Surface& surface, Point from, Point to, model::Colour colour);

/// A clash that left a province empty, reaching 90 twips to each side.
void DrawStandoffMarker(Surface& surface, Point at);

/// A shield in the owner's colour below the dot of a supply centre; nothing for a neutral one.
void DrawCentreOwnerMarker(Surface& surface, const model::GameState& game,
                           const settings::MapOptions& options, int province);

}  // namespace orb::render
