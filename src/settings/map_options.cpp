#include "settings/map_options.h"

namespace orb::settings {

std::optional<MapMode> MapModeOf(std::string_view name) {
  if (name == "colour3d") return MapMode::Colour3D;
  if (name == "colour") return MapMode::Colour;
  if (name == "grey") return MapMode::Grey;
  if (name == "bw") return MapMode::BlackWhite;
  return std::nullopt;
}

}  // namespace orb::settings
