#pragma once

#include "adjudication/resolution.h"
#include "model/game_state.h"

#include <set>
#include <string>
#include <vector>

namespace orb::tests {

/// What the usual rules make of one unit's orders.
struct UnitFate {
  std::string Location;       ///< where it stands after the moves, also when it is dislodged
  std::string DislodgedFrom;  ///< empty too where the attack came by convoy
  bool Dislodged = false;
  bool Moves = false;     ///< it has a possible move
  bool Supports = false;  ///< it has a possible support that matches
  bool Serves = false;    ///< its move succeeds, its support is given

  /// Paradox, NoPath or Ring of moves that they decide; else None.
  adjudication::Ruling Why = adjudication::Ruling::None;

  bool operator==(const UnitFate&) const = default;
};

/// The moves of a position decided by the usual rules.
struct Ruled {
  std::vector<UnitFate> Units;      ///< from 0, in the order of the table
  std::set<std::string> Standoffs;  ///< provinces
  int Moves = 0;
  int Convoyed = 0;           ///< moves that go by convoy and have a chain of fleets ordered to
  int Paradoxes = 0;          ///< of those: without a path since it would depend on itself
  bool HasCircle = false;     ///< moves that succeed only together
  std::string Contradiction;  ///< the rules do not lead to one result; says how
};

/// Decides the moves by nothing but the definitions: tries every assignment of success to the
/// possible moves and keeps those that satisfy all of them. Slow beyond a dozen moves.
Ruled RuleByTrial(const model::GameState& game);

}  // namespace orb::tests
