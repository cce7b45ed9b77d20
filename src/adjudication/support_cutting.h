#pragma once

#include "adjudication/resolution.h"
#include "model/game_state.h"

namespace orb::adjudication {

/// Cuts the support of the unit that move m is aimed at, if it gives one: a support to hold always,
/// a support of a move unless the attack comes from the place supported into. Neither the power
/// nor the success of the attack matters.
void CutSupports(const model::GameState& game, Resolution& resolution, int m);

}  // namespace orb::adjudication
