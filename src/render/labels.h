#pragma once

#include "model/game_state.h"
#include "render/surface.h"
#include "settings/map_options.h"

#include <span>
#include <string_view>
#include <vector>

// The names of the places. A light seam keeps their letters apart from whatever lies below.

namespace orb::render {

/// The font of labels, captions and legend: 8 points, as the label boxes expect it.
void SetLabelFont(Surface& surface);

/// Writes the label of the location in a row of the map, with a supply centre's dot and the box
/// that tells its owner. The font must be that of the labels.
void DrawLabel(Surface& surface, const model::GameState& game, const settings::MapOptions& options,
               int row);

/// The same over the lines of orders, which the dot is kept apart from as well.
void DrawLabelAgain(Surface& surface, const model::GameState& game,
                    const settings::MapOptions& options, int row);

/// A unit as it is drawn.
struct ShownUnit {
  std::string_view UnitType;
  Point At;  ///< in fractions of the surface
  double Scale = 1;
  int LabelRow = 0;  ///< of the location on whose label it lies, as dislodged units do
};

/// All units of a situation in their order. Throws IndexOutOfRange for one in no known place.
std::vector<ShownUnit> UnitsShown(const model::GameState& game);

/// Blots out the labels that units are about to lie on, so that no ends of letters show beside
/// them.
void HideLabelsUnder(Surface& surface, const model::GameState& game,
                     const settings::MapOptions& options, std::span<const ShownUnit> units);

/// Writes those labels beside the units, where there is most room.
void DrawLabelsBeside(Surface& surface, const model::Map& map, std::span<const ShownUnit> units);

}  // namespace orb::render
