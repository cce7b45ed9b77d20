#pragma once

#include "adjudication/battlefield.h"

namespace orb::adjudication {

/// Cuts the support of the unit that move m is aimed at, if it gives one: a support to hold always,
/// a support of a move unless the attack comes from the place supported into. Neither the power
/// nor the success of the attack matters.
void CutSupports(Battlefield& field, int m);

}  // namespace orb::adjudication
