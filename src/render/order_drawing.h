#pragma once

#include "model/game_state.h"
#include "render/order_routes.h"
#include "render/surface.h"
#include "settings/map_options.h"

#include <span>
#include <vector>

// How orders look on the map. A move is an arrow, a retreat one of long dashes; a support is a
// dashed line to a dot on the move, or beside the unit, that it is for; a unit that holds stands in
// a ring, a fleet that convoys on waves. What failed is stopped by a bar, its rest dashed; a
// support that was cut has a gap between two strokes; what is void is only dotted, with an x.

namespace orb::render {

/// Draws what lies below the units.
void DrawOrdersBelowUnits(Surface& surface, const model::GameState& game,
                          std::span<const OrderRoute> routes, const settings::MapOptions& options);

/// Draws what lies on the units: an x over those that are disbanded, a ring with a plus about those
/// that are built; where one does not stand yet, the unit itself.
void DrawOrdersAboveUnits(Surface& surface, const model::GameState& game,
                          std::span<const OrderRoute> routes, const settings::MapOptions& options);

/// Rows of the places whose labels or centre dots the orders' lines run over, in map order.
std::vector<int> LabelsUnder(std::span<const OrderRoute> routes,
                             const std::vector<LabelBoxes>& labels);

}  // namespace orb::render
