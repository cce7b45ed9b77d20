#pragma once

#include "orders/exchange/segments.h"

namespace orb::exchange {

/// Whether a clause says that all units, or all others, hold: "everything else holds".
bool TellsOfRest(Tokens clause);

/// Whether a clause says that nothing more is ordered: "nothing else moves".
bool TellsOfNothing(Tokens clause);

/// The orders of the power's units that the text orders nothing else; none where it is not known
/// whose they are. What only "stays" may as well be orders sent before: it is doubtful.
PartsRead HoldsOfRest(TokenRange range, Tokens clause, const KnownGame& known,
                      const Context& context);

}  // namespace orb::exchange
