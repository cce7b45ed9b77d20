#pragma once

#include "model/game_state.h"
#include "model/unit_type.h"

#include <cstdint>

namespace orb::orders {

/// A unit in rows of the tables, as orders are compared with it; 0 for what is unknown.
struct Piece {
  std::int8_t Power = 0;
  model::UnitType UnitType = model::UnitType::None;
  std::int16_t Location = 0;

  bool operator==(const Piece&) const = default;
};

/// The units of a situation under their own indices.
using Pieces = model::Table<Piece, model::UnitBound>;

Pieces PiecesOf(const model::GameState& game);

}  // namespace orb::orders
