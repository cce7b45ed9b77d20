#pragma once

#include <cstdint>
#include <string_view>

namespace orb::model {

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

/// Whether the abbreviation is that of one coast of a province: "Stp.n".
inline bool IsCoast(std::string_view location) {
  return location.find('.') != std::string_view::npos;
}

/// The abbreviation of the province that a location is, or is a coast of: "Stp" for "Stp.n".
inline std::string_view ProvinceName(std::string_view location) {
  return location.substr(0, 3);
}

}  // namespace orb::model
