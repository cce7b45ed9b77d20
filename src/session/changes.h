#pragma once

#include "session/situation.h"

#include <cstdint>

namespace orb::session {

/// Parts of a situation, as a set: what a command changed, or what a view of it depends on.
enum class Changes : std::uint16_t {
  None = 0,
  Season = 1,    ///< title, season, year, stage, free text
  Position = 2,  ///< units and centres
  Powers = 4,    ///< players and colours
  Orders = 8,    ///< the lists, and the line at which resolving stopped
  Report = 16,   ///< the report with its notes, and the outcomes of orders
  File = 32,     ///< the game's file and whether it is only read
  Editing = 64,  ///< what is edited, and which steps can be taken
  Rules = 128,   ///< by which rules stages are resolved
  Game = 256,    ///< it is another game, or another season of it
  All = 511,
};

constexpr Changes operator|(Changes a, Changes b) {
  return static_cast<Changes>(static_cast<unsigned>(a) | static_cast<unsigned>(b));
}

constexpr Changes& operator|=(Changes& a, Changes b) {
  return a = a | b;
}

/// Whether the two sets have a part in common.
constexpr bool Meet(Changes a, Changes b) {
  return (static_cast<unsigned>(a) & static_cast<unsigned>(b)) != 0;
}

/// Whether the first set has no part that the second lacks.
constexpr bool Within(Changes parts, Changes all) {
  return (parts | all) == all;
}

/// Whether the lists of all stages are the same.
bool SameLists(const model::GameState& a, const model::GameState& b);

/// Whether the two are the same in all that people have put into them: everything but the powers'
/// colours, the report and the file.
bool SameWork(const model::GameState& a, const model::GameState& b);

Changes ChangesBetween(const Situation& before, const Situation& after);

}  // namespace orb::session
