#pragma once

namespace orb::settings {

enum class MapMode { Colour3D, Colour, Grey, BlackWhite };

/// How the map is shown.
struct MapOptions {
  MapMode Mode = MapMode::Colour3D;
  bool ShowCentreCount = false;
  bool ColourBordersByOwner = false;
  bool ShowCentreOwners = false;
};

constexpr bool InColour(MapMode mode) {
  return mode == MapMode::Colour3D || mode == MapMode::Colour;
}

}  // namespace orb::settings
