#pragma once

#include "orders/exchange/place_names.h"
#include "orders/exchange/written_order.h"

#include <cstdint>
#include <optional>

namespace orb::exchange {

// What stands beside orders and speaks for or against them. What is not known to be harmless makes
// an order doubtful: whoever wrote "(only with his support)" must be asked.

/// The first words of a remark that may change the order beside it. Thanks and the like never do,
/// nor does what repeats a place, power or verb of the order itself.
std::optional<TokenRange> FindDoubt(Tokens remark, Tokens order, const PlaceNames& names);

/// Whether words behind an order without any brackets surely are a remark: "lol", "as agreed".
bool IsHarmlessTail(Tokens tail);

/// Which orders a line without an order sets aside.
enum class AsideScope : std::uint8_t {
  Below,          ///< a heading: "Last turn:", "Draft:"
  Above,          ///< "just kidding"; nothing where no order stands above
  AboveElseBelow  ///< "Please do not process these yet": what stands above, if anything does
};

struct Aside {
  AsideScope Scope = AsideScope::Below;
  TokenRange At;
};

/// What a line without an order sets aside; nothing for most lines.
std::optional<Aside> ReadAside(Tokens line);

/// Whether a line says that the orders in it or below it hold rather than earlier ones:
/// "Correction:", "changed my mind".
bool Corrects(Tokens line);

}  // namespace orb::exchange
