#pragma once

#include "adjudication/resolution.h"
#include "model/game_state.h"

#include <algorithm>
#include <array>

namespace orb::survey {

/// One stage resolved by both rules.
struct StagePair {
  const model::GameState& Before;
  const model::GameState& After;  ///< by ORB's own rules
  const adjudication::Resolution& Orb;
  const adjudication::Resolution& Usual;
  adjudication::OrderSet Different;  ///< the orders that are looked at: those that differ, or all

  int Lines() const { return std::min(Orb.Orders.Count(), Usual.Orders.Count()); }
};

/// A kind of difference between the rules: its heading in the help, and whether it is found in the
/// orders that are looked at.
struct DifferenceKind {
  const char* Name;
  bool (*Fits)(const StagePair&);
};

constexpr std::size_t KindCount = 16;
extern const std::array<DifferenceKind, KindCount> DifferenceKinds;

}  // namespace orb::survey
