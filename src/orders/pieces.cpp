#include "orders/pieces.h"

namespace orb::orders {

Pieces PiecesOf(const model::GameState& game) {
  Pieces pieces;
  for (const model::Unit& unit : game.Units) {
    pieces.Append({static_cast<std::int8_t>(model::FindCountry(unit.Power)),
                   model::UnitTypeOf(unit.UnitType),
                   static_cast<std::int16_t>(model::FindProvince(*game.Map, unit.Location))});
  }
  return pieces;
}

}  // namespace orb::orders
