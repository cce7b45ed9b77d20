#pragma once

#include <cstdint>
#include <string_view>

namespace orb::model {

enum class UnitType : std::uint8_t { None, Army, Fleet };

/// The type that a text names exactly: "A" or "F"; None for any other text.
constexpr UnitType UnitTypeOf(std::string_view text) {
  if (text == "A") return UnitType::Army;
  return text == "F" ? UnitType::Fleet : UnitType::None;
}

/// "A" or "F"; empty for None.
constexpr std::string_view UnitTypeName(UnitType type) {
  if (type == UnitType::Army) return "A";
  return type == UnitType::Fleet ? "F" : std::string_view{};
}

}  // namespace orb::model
