#pragma once

#include "orders/exchange/order_part.h"
#include "orders/exchange/source_line.h"

#include <cstddef>
#include <deque>

namespace orb::exchange {

// Mail programs and editors break the lines of prose.

/// How many lines from one on are a paragraph that gives more as a whole, which is put into
/// `joined` with the number of its first line, than line by line; 1, and nothing to be used, where
/// it does not. `tries` counts for a text how often that was looked at, since it takes long.
std::size_t JoinParagraph(const std::deque<SourceLine>& text, std::size_t first,
                          const KnownGame& known, const Context& context, int& tries,
                          SourceLine& joined);

}  // namespace orb::exchange
