#pragma once

#include "orders/exchange/run_on.h"

namespace orb::exchange {

/// Whether words tell to put one order in the place of another: "please change", "ersetze".
bool Replaces(Tokens words);

/// Whether words between two orders put the first in the place of the second: "replaces".
bool ReplacesNext(Tokens words);

/// The two orders of a sentence that puts one of them in the place of the other, of the same unit,
/// and the words around them: "Change A Par - Bur to A Par - Pic". None for other sentences.
PartsRead ReadReplacement(Tokens sentence, const KnownGame& known, Context& context);

}  // namespace orb::exchange
