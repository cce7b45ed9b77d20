#pragma once

#include "orders/exchange/plain_text.h"
#include "orders/exchange/text_repairs.h"
#include "orders/exchange/words.h"
#include "orders/exchange/written_order.h"

#include <cstddef>
#include <cstdint>
#include <span>
#include <string_view>
#include <vector>

namespace orb::exchange {

/// A line of the text with its tokens, which look into its plain form.
struct SourceLine {
  int Number = 0;
  std::string_view Bytes;  ///< without blanks at its ends
  std::size_t Offset = 0;
  PlainText Plain;
  std::vector<Token> All;
  bool IsTooLong = false;
};

/// Takes a line apart, up to its plain form. `offset` is where it begins in the whole text.
SourceLine CutLine(int number, std::string_view bytes, std::size_t offset,
                   std::span<const TextRepair> repairs);

/// What parts the orders of a line, the strongest first: each is tried only where the stronger ones
/// leave something that is not understood.
enum class Seam : std::uint8_t { Semicolon, Comma, FullStop };

/// The parts between seams that stand in no brackets; empty ones are left out.
std::vector<TokenRange> Split(Tokens tokens, TokenRange range, Seam seam);

}  // namespace orb::exchange
