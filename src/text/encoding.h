#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace orb::text {

/// The 8-bit form (Windows-1252) of a UTF-8 text; nothing when a character has none or the text is
/// no UTF-8. The five codes without a character stand for the control characters of that number.
std::optional<std::string> ToWindows1252(std::string_view utf8);

/// The UTF-8 form of an 8-bit text (Windows-1252).
std::string ToUtf8(std::string_view windows1252);

/// Whether a text is UTF-8, as plain ASCII is.
bool IsUtf8(std::string_view text);

/// A file name as texts for the user have it, which are 8-bit: a character without an 8-bit form is
/// "?"; a name that is no UTF-8 stays as it is.
std::string NameInText(std::string_view fileName);

}  // namespace orb::text
