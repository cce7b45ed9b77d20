#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace orb::text {

/// The 8-bit form (Windows-1252) of a UTF-8 text; nothing when a character has none or the text is
/// no UTF-8. The five codes without a character stand for the control characters of that number.
std::optional<std::string> ToWindows1252(std::string_view utf8);

}  // namespace orb::text
