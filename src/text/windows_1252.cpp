#include "text/windows_1252.h"

#include <algorithm>
#include <array>

namespace orb::text {
namespace {

constexpr std::size_t FirstSpecial = 0x80;

/// The characters of the codes 0x80 to 0x9F; all others are their own codes.
constexpr std::array<char16_t, 32> Special = {
    0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
    0x2039, 0x0152, 0x008D, 0x017D, 0x008F, 0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
    0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178};

constexpr std::size_t AfterSpecial = FirstSpecial + Special.size();

}  // namespace

char16_t CharacterOf(unsigned char code) {
  const bool special = code >= FirstSpecial && code < AfterSpecial;
  return special ? Special[code - FirstSpecial] : code;
}

std::optional<char> CodeOf(char32_t character) {
  if (character < FirstSpecial || (character >= AfterSpecial && character <= 0xFF)) {
    return static_cast<char>(character);
  }
  const auto* const found = std::find(Special.begin(), Special.end(), character);
  if (found == Special.end()) return std::nullopt;
  return static_cast<char>(FirstSpecial + static_cast<std::size_t>(found - Special.begin()));
}

}  // namespace orb::text
