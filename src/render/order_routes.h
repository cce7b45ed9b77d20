#pragma once

#include "model/game_state.h"
#include "orders/order_outcome.h"
#include "render/label_boxes.h"
#include "render/paths.h"

#include <span>
#include <vector>

namespace orb::render {

/// The line of an order, from a unit to the edge of another one or to another line.
struct Way {
  Path Line;       ///< empty for none
  double Leg = 0;  ///< where its last leg begins, as a distance from the start

  /// The distance from the start at this part, 0..1, of what can be seen of the last leg: it begins
  /// below a unit's symbol.
  double At(double part) const;
};

/// An order that can be drawn, and where its lines run, in twips.
struct OrderRoute {
  const orders::OrderOutcome* Order;
  int Power;              ///< row 1..7
  Point Unit;             ///< where the ordered unit is drawn
  render::Way Way;        ///< to its destination, or to the move or unit that it supports
  render::Way Unordered;  ///< the supported or convoyed move when nobody ordered it
  double Mark = 0;        ///< where the line tells how it ended, as a distance from its start
};

/// The routes of the orders whose powers and places are on the map, in their order; their ends keep
/// clear of labels where they can. The orders must outlive them.
std::vector<OrderRoute> RoutesOf(const Surface& surface, const model::GameState& game,
                                 std::span<const orders::OrderOutcome> orders,
                                 const std::vector<LabelBoxes>& labels);

}  // namespace orb::render
