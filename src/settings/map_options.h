#pragma once

#include <optional>
#include <string_view>

namespace orb::settings {

enum class MapMode { Colour3D, Colour, Grey, BlackWhite };

/// The mode with this name in command lines and requests: "colour3d", "colour", "grey" or "bw".
std::optional<MapMode> MapModeOf(std::string_view name);

/// How the map is shown.
struct MapOptions {
  MapMode Mode = MapMode::Colour3D;
  bool ShowCentreCount = false;
  bool ColourBordersByOwner = false;
  bool ShowCentreOwners = false;
  bool TintByOwner = false;  ///< lands in the tints of their owners
  bool UnitLetters = false;  ///< the powers' initials on their units, also in colour
};

constexpr bool InColour(MapMode mode) {
  return mode == MapMode::Colour3D || mode == MapMode::Colour;
}

}  // namespace orb::settings
