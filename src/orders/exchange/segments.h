#pragma once

#include "orders/exchange/run_on.h"

#include <cstddef>
#include <optional>

namespace orb::exchange {

/// What stands between two semicolons of a line.
struct SegmentRead {
  PartsRead Parts;  ///< its orders and what stands between them
  /// The token of a word that makes all of it a condition, or sets it aside; there are no parts
  /// then.
  std::optional<std::size_t> Condition;
};

/// Reads a segment of a line: as one order, or as several between commas, full stops or nothing at
/// all, or as one with a slip of the pen. What it leaves in the context holds for the rest of the
/// line. `inSignature`: places alone make no order there.
SegmentRead ReadSegment(Tokens line, TokenRange segment, const KnownGame& known, Context& context,
                        bool inSignature);

}  // namespace orb::exchange
