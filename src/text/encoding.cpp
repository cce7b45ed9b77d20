#include "text/encoding.h"

#include "text/utf8.h"
#include "text/windows_1252.h"

namespace orb::text {

std::optional<std::string> ToWindows1252(std::string_view utf8) {
  std::string bytes;
  while (!utf8.empty()) {
    const auto character = NextCharacter(utf8);
    const auto byte = character ? CodeOf(*character) : std::nullopt;
    if (!byte) return std::nullopt;
    bytes += *byte;
  }
  return bytes;
}

std::string ToUtf8(std::string_view windows1252) {
  std::string utf8;
  for (const char c : windows1252)
    AppendUtf8(utf8, CharacterOf(static_cast<unsigned char>(c)));
  return utf8;
}

bool IsUtf8(std::string_view text) {
  while (!text.empty()) {
    if (!NextCharacter(text)) return false;
  }
  return true;
}

std::string NameInText(std::string_view fileName) {
  // A system without UTF-8 names its files in 8 bits already.
  if (!IsUtf8(fileName)) return std::string(fileName);
  std::string bytes;
  while (!fileName.empty())
    bytes += CodeOf(*NextCharacter(fileName)).value_or('?');
  return bytes;
}

}  // namespace orb::text
