#pragma once

#include "orders/exchange/run_on.h"

namespace orb::exchange {

/// Reads a segment of a line: as one order, or as several between sentences, commas or nothing at
/// all, or as orders among other words. Its orders come back with what stands between them. What it
/// leaves in the context holds for the rest of the line. `inSignature`: places alone make no order
/// there.
PartsRead ReadSegment(Tokens line, TokenRange segment, const KnownGame& known, Context& context,
                      bool inSignature);

}  // namespace orb::exchange
