#pragma once

#include "orders/exchange/place_names.h"
#include "orders/exchange/written_order.h"

#include <cstddef>
#include <optional>

namespace orb::exchange {

// Words that put an order in the place of another one.

/// Whether words before an order are second thoughts about the one before it: "no wait", "oder
/// doch".
bool Reconsiders(Tokens words);

/// The place that words exclude where they say no more, "not Pic", "instead of Spain": a row of the
/// map, or 0.
int ExcludedPlace(Tokens words, const PlaceNames& names);

/// The place that an order went to before, where words say no more, "was MAO": a row of the map, or
/// 0.
int FormerPlace(Tokens words, const PlaceNames& names);

/// How many of the first words are second thoughts and nothing else: of "no wait, I mean A Par" all
/// before the unit; 0: none.
std::size_t PastThoughts(Tokens words);

/// Whether words are second thoughts and nothing else.
inline bool IsSecondThought(Tokens words) {
  return !words.empty() && PastThoughts(words) == words.size();
}

/// Where words next to an order say that it holds rather than another one: "make that", "instead".
/// `isBefore`: the order stands behind them.
std::optional<TokenRange> FindCorrection(Tokens words, bool isBefore);

/// Whether a line says plainly that the orders in it or below it hold rather than earlier ones:
/// "Correction:", "changed my mind", "my final orders". Words such as "sorry" or "new" do not.
bool Corrects(Tokens line);

}  // namespace orb::exchange
