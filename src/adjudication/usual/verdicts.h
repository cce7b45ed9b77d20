#pragma once

#include "adjudication/resolution.h"
#include "adjudication/usual/settlement.h"

namespace orb::adjudication::usual {

/// Puts into the resolution how each order came out and what decided it.
void RecordVerdicts(const Plans& plans, const Settlement& settlement, Resolution& resolution);

/// The move that dislodged the unit; 0: none did.
int DislodgerOf(const Plans& plans, const Settlement& settlement, int unit);

}  // namespace orb::adjudication::usual
