#pragma once

#include "model/game_state.h"
#include "orders/exchange/read_line.h"
#include "orders/exchange/text_repairs.h"

#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace orb::exchange {

/// The longest text that is read, in bytes; what is longer is no mail with orders.
constexpr std::size_t TextBound = 500'000;

/// A line of this alone ends one text and begins another, as of two mails: what headings,
/// quotations and the like say holds up to it. Orders for one unit on both sides still contradict
/// each other.
constexpr std::string_view TextSeparator = "\f";

struct ReadingOptions {
  std::string Power;  ///< abbreviation of the power of lines that name none; empty: whose units
                      ///< and centres they are
  std::span<const TextRepair> Repairs;
};

/// Reads orders for the game's stage as people write them. Every line of the text comes back, in
/// order; one that holds several orders as several. The text is UTF-8 or Windows-1252, decided
/// for each line separately; lines end in LF, CR LF or CR. A line in the exact form always reads as
/// itself. No order is guessed: what can be read in two ways is ambiguous, unless only one of them
/// can be meant in the game. Throws FatalError for a text beyond the bound.
std::vector<ReadLine> ReadOrders(const model::GameState& game, std::string_view text,
                                 const ReadingOptions& options);

/// Reads a text as a single order, as it is typed: never Heading, and PassedOver only when empty.
/// `before` are lines read with it, whose moves tell what a support can mean.
ReadLine ReadOrder(const model::GameState& game, std::string_view text,
                   const ReadingOptions& options, const std::vector<ReadLine>& before = {});

}  // namespace orb::exchange
