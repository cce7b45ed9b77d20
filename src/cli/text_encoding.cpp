#include "cli/text_encoding.h"

#include "model/utf8.h"
#include "model/windows_1252.h"

namespace orb::cli {

std::optional<std::string> ToWindows1252(std::string_view utf8) {
  std::string bytes;
  while (!utf8.empty()) {
    const auto character = model::NextCharacter(utf8);
    const auto byte = character ? model::CodeOf(*character) : std::nullopt;
    if (!byte) return std::nullopt;
    bytes += *byte;
  }
  return bytes;
}

}  // namespace orb::cli
