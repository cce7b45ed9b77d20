#pragma once

#include "model/game_state.h"

#include <random>
#include <string>
#include <string_view>

namespace orb::fuzz {

/// Choices made by the bytes of an input, and by chance that depends on them alone when they are
/// used up: a few bytes make a whole game.
class Choices {
 public:
  explicit Choices(std::string_view bytes);

  /// A number from 0 on, below a bound of at most 256.
  int Below(int bound);
  bool OneIn(int count) { return Below(count) == 1; }

 private:
  std::string_view bytes_;
  std::mt19937 chance_;
};

/// A game on the real map: units of all powers where units can stand and where they cannot, one in
/// a place, some of them dislodged; centres of any owner; any stage.
model::GameState DrawnGame(Choices& next);

/// Files lines in the form of the game's stage: for most units one that they may be able to carry
/// out, and some for any unit; a few builds and removals.
void FileDrawnOrders(model::GameState& game, Choices& next);

}  // namespace orb::fuzz
