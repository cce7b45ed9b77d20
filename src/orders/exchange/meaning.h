#pragma once

#include "orders/exchange/known_game.h"

#include <optional>
#include <string>
#include <vector>

namespace orb::exchange {

/// An order that something written can mean.
struct Meaning {
  std::string Line;       ///< in the exact form
  std::string Objection;  ///< why it cannot be carried out, as far as that is seen here
  int Power = 0;
};

/// Everything that a text can mean, each order once; without any, the fault says why.
struct Meanings {
  std::vector<Meaning> All;
  std::optional<Fault> Problem;
};

/// Whether the unit can be ordered so, as far as the map tells.
bool IsPossible(const Meaning& meaning, const KnownGame& known);

/// What the readings of one text mean in the game. Orders without an objection outdo those
/// with one. `power` is who gives the order unless the text names another; 0: nobody.
Meanings FindMeanings(const std::vector<WrittenOrder>& readings, const KnownGame& known, int power);

}  // namespace orb::exchange
