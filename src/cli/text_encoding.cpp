#include "cli/text_encoding.h"

#include <algorithm>
#include <array>

namespace orb::cli {
namespace {

constexpr std::size_t HighControls = 0x80;

/// The characters of the codes 0x80 to 0x9F; all others are their own codes.
constexpr std::array<char32_t, 32> HighCharacters{
    0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
    0x2039, 0x0152, 0x008D, 0x017D, 0x008F, 0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
    0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178};

/// Cuts the first character off a text; nothing when the text does not begin with one.
std::optional<char32_t> NextCharacter(std::string_view& text) {
  const auto first = static_cast<unsigned char>(text.front());
  const std::size_t length = first < 0x80 ? 1 : first < 0xE0 ? 2 : first < 0xF0 ? 3 : 4;
  constexpr std::array<unsigned, 5> leadBits{0, 0x7F, 0x1F, 0x0F, 0x07};
  constexpr std::array<char32_t, 5> smallest{0, 0, 0x80, 0x800, 0x10000};
  if ((first >= 0x80 && first < 0xC0) || text.size() < length) return std::nullopt;
  char32_t character = first & leadBits[length];
  for (const char c : text.substr(1, length - 1)) {
    const auto byte = static_cast<unsigned char>(c);
    if ((byte & 0xC0U) != 0x80) return std::nullopt;
    character = character << 6 | (byte & 0x3FU);
  }
  text.remove_prefix(length);
  if (character < smallest[length]) return std::nullopt;
  return character;
}

std::optional<char> EightBitForm(char32_t character) {
  if (character < HighControls || (character >= 0xA0 && character <= 0xFF)) {
    return static_cast<char>(character);
  }
  const auto* const found = std::find(HighCharacters.begin(), HighCharacters.end(), character);
  if (found == HighCharacters.end()) return std::nullopt;
  return static_cast<char>(HighControls + static_cast<std::size_t>(found - HighCharacters.begin()));
}

}  // namespace

std::optional<std::string> ToWindows1252(std::string_view utf8) {
  std::string bytes;
  while (!utf8.empty()) {
    const auto character = NextCharacter(utf8);
    const auto byte = character ? EightBitForm(*character) : std::nullopt;
    if (!byte) return std::nullopt;
    bytes += *byte;
  }
  return bytes;
}

}  // namespace orb::cli
