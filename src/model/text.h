#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace orb::model {

/// The text without leading and trailing blanks. A blank is the space character; a tab is text.
std::string_view Trim(std::string_view text);

/// The text with a to z made capitals; every other byte stays.
std::string UpperCase(std::string_view text);

/// The text with A to Z made small; every other byte stays.
std::string LowerCase(std::string_view text);

/// A number equal for two abbreviations exactly when their first three characters are equal: two
/// such locations are the same place.
inline std::uint32_t PlaceCode(std::string_view location) {
  std::uint32_t code = location.size() < 3 ? static_cast<std::uint32_t>(location.size()) : 3U;
  for (const char c : location.substr(0, 3))
    code = code << 8 | static_cast<unsigned char>(c);
  return code;
}

/// Whether two abbreviations name the same place (a province and its coasts are one place).
inline bool SamePlace(std::string_view a, std::string_view b) {
  if (a.size() < 3 || b.size() < 3) return PlaceCode(a) == PlaceCode(b);
  return a[0] == b[0] && a[1] == b[1] && a[2] == b[2];
}

/// Cuts the text before the first "," off the line and returns it; the line keeps what follows.
/// Without a "," the whole line is returned and the line becomes empty. Nothing is trimmed.
std::string_view NextField(std::string_view& line);

/// Cuts the next line off the text and returns it without its line end (CR LF, LF or CR).
std::string_view NextLine(std::string_view& text);

}  // namespace orb::model
