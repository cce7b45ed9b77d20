#pragma once

#include "orders/exchange/segments.h"

namespace orb::exchange {

/// Whether a clause tells who helps its order: "with support from Ruhr", "convoyed by the fleet in
/// the North Sea".
bool TellsHelpers(Tokens clause);

/// The orders of a clause of prose whose every word is understood: with pronouns ("it goes to
/// Tunis", "Marseilles backs it up"), words that add nothing ("then", "for now"), helpers at its
/// end and the like. None where a word is left over. `before`: the parts of the line so far.
PartsRead ReadProse(Tokens line, TokenRange range, const PartsRead& before, const KnownGame& known,
                    Context& context);

}  // namespace orb::exchange
