#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace orb::text {

/// Cuts the first character off a text that is not empty. Nothing, and nothing is cut, when the
/// text does not begin with a character in UTF-8.
std::optional<char32_t> NextCharacter(std::string_view& utf8);

/// Appends a character to a text in UTF-8.
void AppendUtf8(std::string& utf8, char32_t character);

}  // namespace orb::text
