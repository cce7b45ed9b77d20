#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace orb::exchange {

/// A range of bytes of the text that is read.
struct Span {
  std::size_t Offset = 0;
  std::size_t Length = 0;
};

/// A line with its typography made plain, and for every byte where it was written. Dashes of all
/// lengths are "-" or "--", arrows "->", special blanks blanks, quotes straight, letters without
/// accents, Greek and Cyrillic ones in Latin; invisible characters are gone. What has no plain form
/// stays as its bytes.
struct PlainText {
  std::string Text;
  std::vector<Span> Origins;  ///< one a byte of Text

  /// What was written for the bytes begin..end of Text; begin < end.
  Span Written(std::size_t begin, std::size_t end) const;
};

/// Whether the character references of HTML are read as the characters they stand for.
enum class References : std::uint8_t { Read, Kept };

/// Reads a line of UTF-8, or of Windows-1252 where it is no UTF-8; dashes, arrows and the like
/// whose UTF-8 was taken for Windows-1252 on the way are read as what they were. `offset` is where
/// the line begins in the whole text.
PlainText ToPlain(std::string_view line, std::size_t offset,
                  References references = References::Read);

}  // namespace orb::exchange
