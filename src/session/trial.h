#pragma once

#include "session/commands.h"

namespace orb::session {

/// The situation as it would be if the stage were resolved now, by the rules in force: nothing is
/// asked, units without an order hold, orders at fault are left out. The given one stays as it is.
/// Throws FatalError in a stage without orders, and with what the rules object to where they cannot
/// resolve it.
Situation TryOut(const Situation& situation, Noting noting = Noting::Full,
                 Comparing comparing = Comparing::No);

}  // namespace orb::session
