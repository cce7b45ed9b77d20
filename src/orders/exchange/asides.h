#pragma once

#include "orders/exchange/words.h"
#include "orders/exchange/written_order.h"

#include <cstdint>
#include <optional>

namespace orb::exchange {

// What a line says of the orders around it.

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

/// Whether a line says plainly that the orders in it or below it hold rather than earlier ones:
/// "Correction:", "changed my mind", "my final orders". Words such as "sorry" or "new" do not.
bool Corrects(Tokens line);

}  // namespace orb::exchange
