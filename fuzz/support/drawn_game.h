#pragma once

#include "model/game_state.h"

#include <cstddef>
#include <string>
#include <string_view>

namespace orb::fuzz {

/// Choices made by the bytes of an input; 0 when they are used up.
class Choices {
 public:
  explicit Choices(std::string_view bytes) : bytes_(bytes) {}

  /// A number from 0 on, below a bound of at most 256.
  int Below(int bound);
  bool OneIn(int count) { return Below(count) == 1; }
  bool AreLeft() const { return !bytes_.empty(); }

 private:
  std::string_view bytes_;
};

/// A game on the real map: units of all powers where units can stand and where they cannot, one in
/// a place, some of them dislodged; centres of any owner; any stage.
model::GameState DrawnGame(Choices& next);

/// A line in the form of the game's stage, most of them for a unit that there is.
std::string DrawnOrder(const model::GameState& game, Choices& next);

}  // namespace orb::fuzz
