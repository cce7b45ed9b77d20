#pragma once

#include <optional>
#include <string_view>

namespace orb::text {

/// Cuts a character reference of HTML, as "&#8211;", "&#x2192;", "&nbsp;" or "&auml;", off the
/// front of a text and returns the character it stands for. A letter with an accent, given by its
/// name, comes without it. Nothing, and nothing is cut, where none stands there that is known.
std::optional<char32_t> NextReference(std::string_view& text);

}  // namespace orb::text
