#pragma once

#include "adjudication/battlefield.h"

namespace orb::adjudication {

/// Decides every pending move on the battlefield pass by pass: forces, opposite moves, moves
/// against units that stay, all other moves, and rings. Marks dislodged units.
void DecideMoves(Battlefield& field);

}  // namespace orb::adjudication
