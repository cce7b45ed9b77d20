#pragma once

#include "model/game_state.h"
#include "orders/exchange/plain_text.h"
#include "orders/exchange/text_repairs.h"

#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace orb::exchange {

/// The longest text that is read, in bytes; what is longer is no mail with orders.
constexpr std::size_t TextBound = 500'000;

enum class LineKind : std::uint8_t {
  Order,          ///< understood
  Waive,          ///< understood, and asks for nothing
  NotUnderstood,  ///< an order, or perhaps one
  Ambiguous,      ///< it can mean several orders
  Heading,        ///< says which power, or which kind of adjustment, the lines below are for
  PassedOver,     ///< surely no order
};

/// A line of a text, or an order in it where it holds several, and what was understood. Places are
/// in bytes of the whole text.
struct ReadLine {
  int Number = 0;       ///< of the line, from 1
  Span Place;           ///< what was written, without blanks, bullets and the like around it
  std::string Written;  ///< its bytes
  LineKind Kind = LineKind::PassedOver;
  std::string Order;  ///< of Order: the line for the stage's list, "FRA A(Par) - Bur"
  std::string Power;  ///< of the order or heading; else of the lines here, empty when none is named
  std::string Reason;  ///< why it is unclear; of Order: why it cannot be carried out, or empty
  Span ReasonPlace;  ///< what the reason is about; empty behind the text when something is missing
  std::vector<std::string> Candidates;  ///< of Ambiguous: the orders that it can mean
  bool IsReplaced = false;              ///< unclear for no other reason than that it is quoted
};

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

/// Whether a line must be shown to somebody: not understood or ambiguous.
inline bool IsUnclear(const ReadLine& line) {
  return line.Kind == LineKind::NotUnderstood || line.Kind == LineKind::Ambiguous;
}

}  // namespace orb::exchange
