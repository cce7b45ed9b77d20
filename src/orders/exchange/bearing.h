#pragma once

#include "orders/exchange/place_names.h"
#include "orders/exchange/written_order.h"

#include <cstdint>
#include <optional>

namespace orb::exchange {

/// Whether a unit that is named without its place counts: "the fleet stays".
enum class Unplaced : std::uint8_t { Bears, Ignored };

/// Whether a sentence without orders may bear on those beside it, whatever it says of them: "I
/// don't care, take last turn's", "Tom says I should not", "Is this what you wanted?". Sentences of
/// other things, "It rained all day", do not.
bool BearsOnOrders(Tokens sentence, Unplaced unit = Unplaced::Bears);

/// Whether a sentence excuses something: "Sorry if it's crooked", "excuse the typing".
bool Apologizes(Tokens sentence);

/// Whether a line is of what firms have below their mails: "confidential and may be privileged".
bool IsFooter(Tokens line);

/// Where a sentence of a line does so.
std::optional<TokenRange> FindBearing(Tokens line, const PlaceNames& names);

}  // namespace orb::exchange
