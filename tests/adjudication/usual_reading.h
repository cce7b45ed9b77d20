#pragma once

#include "model/game_state.h"

#include <cstdint>
#include <vector>

namespace orb::tests {

/// Some units, or moves, as bits.
using Bits = std::uint32_t;

inline bool Has(Bits bits, int index) {
  return (bits >> index & 1U) != 0;
}
inline Bits Bit(int index) {
  return Bits{1} << index;
}

/// What a unit is to do, read from the lines of the list. Units count from 0, -1 is none; places
/// are rows of the map, provinces rows of the province.
struct Duty {
  enum class What { Hold, Move, Support, Convoy };
  What Kind = What::Hold;
  int Power = 0;
  int Standing = 0;          ///< its own location
  int From = 0;              ///< its own province
  int To = 0;                ///< destination of its move, province
  int Landing = 0;           ///< destination of its move, location
  int Into = 0;              ///< the province that its support is directed into
  int Helped = -1;           ///< the unit whose order its support matches
  bool ByConvoy = false;     ///< its move is carried
  std::vector<Bits> Chains;  ///< of fleets ordered to convoy its move: each set is enough
};

/// What all units are to do: the lines read, impossible orders and void supports left out.
std::vector<Duty> ReadDuties(const model::GameState& game);

}  // namespace orb::tests
