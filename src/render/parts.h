#pragma once

#include "model/game_state.h"
#include "orders/order_outcome.h"
#include "render/surface.h"

// The provinces, units, orders and captions of a drawing, told to surfaces that keep them apart.

namespace orb::render {

/// Everything drawn while it lives is one part of the picture.
class DrawnPart {
 public:
  /// A province's label and what marks its centre.
  DrawnPart(Surface& surface, const model::GameState& game, int province);
  DrawnPart(Surface& surface, const model::Unit& unit);
  DrawnPart(Surface& surface, const orders::OrderOutcome& order);
  /// Title, season and stage of the game.
  DrawnPart(Surface& surface, const model::GameState& game);
  DrawnPart(const DrawnPart&) = delete;
  DrawnPart& operator=(const DrawnPart&) = delete;
  ~DrawnPart() { surface_.EndPart(); }

 private:
  Surface& surface_;
};

}  // namespace orb::render
