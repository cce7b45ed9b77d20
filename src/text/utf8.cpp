#include "text/utf8.h"

#include <array>

namespace orb::text {

std::optional<char32_t> NextCharacter(std::string_view& utf8) {
  const auto first = static_cast<unsigned char>(utf8.front());
  // The number of leading 1 bits of the first byte is that of all bytes.
  const std::size_t length = first < 0x80 ? 1 : first < 0xE0 ? 2 : first < 0xF0 ? 3 : 4;
  constexpr std::array<unsigned, 5> leadBits{0, 0x7F, 0x1F, 0x0F, 0x07};
  constexpr std::array<char32_t, 5> smallest{0, 0, 0x80, 0x800, 0x10000};
  constexpr unsigned lastLead = 0xF7;
  if ((first >= 0x80 && first < 0xC0) || first > lastLead || utf8.size() < length) {
    return std::nullopt;
  }
  char32_t character = first & leadBits[length];
  for (const char c : utf8.substr(1, length - 1)) {
    const auto byte = static_cast<unsigned char>(c);
    if ((byte & 0xC0U) != 0x80) return std::nullopt;
    character = character << 6 | (byte & 0x3FU);
  }
  // A longer form than needed is no UTF-8; it could smuggle a character past a check.
  if (character < smallest[length]) return std::nullopt;
  utf8.remove_prefix(length);
  return character;
}

void AppendUtf8(std::string& utf8, char32_t character) {
  constexpr char32_t low = 0x3F;
  const auto add = [&](char32_t byte) { utf8 += static_cast<char>(byte); };
  if (character < 0x80) return add(character);
  if (character < 0x800) {
    add(0xC0 | (character >> 6U));
  } else if (character < 0x10000) {
    add(0xE0 | (character >> 12U));
    add(0x80 | ((character >> 6U) & low));
  } else {
    add(0xF0 | (character >> 18U));
    add(0x80 | ((character >> 12U) & low));
    add(0x80 | ((character >> 6U) & low));
  }
  add(0x80 | (character & low));
}

}  // namespace orb::text
