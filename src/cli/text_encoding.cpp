#include "cli/text_encoding.h"

#include "render/windows_1252.h"

#include <array>

namespace orb::cli {
namespace {

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

}  // namespace

std::optional<std::string> ToWindows1252(std::string_view utf8) {
  std::string bytes;
  while (!utf8.empty()) {
    const auto character = NextCharacter(utf8);
    const auto byte = character ? render::CodeOf(*character) : std::nullopt;
    if (!byte) return std::nullopt;
    bytes += *byte;
  }
  return bytes;
}

}  // namespace orb::cli
