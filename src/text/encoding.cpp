#include "text/encoding.h"

#include "text/utf8.h"
#include "text/windows_1252.h"

namespace orb::text {

std::optional<std::string> ToWindows1252(std::string_view utf8) {
  std::string bytes;
  while (!utf8.empty()) {
    const auto character = text::NextCharacter(utf8);
    const auto byte = character ? text::CodeOf(*character) : std::nullopt;
    if (!byte) return std::nullopt;
    bytes += *byte;
  }
  return bytes;
}

}  // namespace orb::text
