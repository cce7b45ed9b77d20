#pragma once

#include "orders/exchange/place_names.h"
#include "orders/exchange/plain_text.h"
#include "orders/exchange/text_repairs.h"
#include "orders/exchange/words.h"
#include "orders/exchange/written_order.h"

#include <cstddef>
#include <cstdint>
#include <deque>
#include <span>
#include <string_view>
#include <vector>

namespace orb::exchange {

/// A line of the text with its tokens. They look into its plain form, so it is never moved.
struct SourceLine {
  SourceLine() = default;
  SourceLine(const SourceLine&) = delete;
  SourceLine& operator=(const SourceLine&) = delete;

  int Number = 1;
  std::string_view Bytes;  ///< without blanks at its ends
  std::size_t Offset = 0;
  PlainText Plain;
  std::vector<Token> All;  ///< none where the line is too long
  bool IsTooLong = false;

  Tokens Part(TokenRange range) const {
    return Tokens(All).subspan(range.Begin, range.End - range.Begin);
  }

  /// Where some tokens were written in the whole text.
  exchange::Span Span(TokenRange range) const {
    return Plain.Written(All[range.Begin].Begin, All[range.End - 1].End);
  }
};

/// Takes a line apart. `offset` is where it begins in the whole text.
void CutLine(SourceLine& line, std::string_view bytes, std::size_t offset,
             std::span<const TextRepair> repairs, const PlaceNames& names);

/// The lines of a text.
std::deque<SourceLine> CutText(std::string_view text, std::span<const TextRepair> repairs,
                               const PlaceNames& names);

/// What parts the orders of a line, the strongest first: each is tried only where the stronger ones
/// leave something that is not understood.
enum class Seam : std::uint8_t { Semicolon, Comma };

/// The parts between seams that stand in no brackets; empty ones are left out.
std::vector<TokenRange> Split(Tokens tokens, TokenRange range, Seam seam);

}  // namespace orb::exchange
