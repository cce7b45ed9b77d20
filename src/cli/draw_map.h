#pragma once

#include "model/game_state.h"
#include "orders/order_outcome.h"
#include "render/map_format.h"
#include "settings/map_options.h"

#include <filesystem>
#include <string>
#include <vector>

namespace orb::cli {

/// A map to be drawn as a picture. Asking for one needs nothing of the drawing toolkit: a module
/// beside the program does the drawing and is loaded only then, so the other commands start without
/// it and run where the toolkit is not installed.
struct MapRequest {
  const model::GameState& Game;
  settings::MapOptions Options;
  std::filesystem::path DataDirectory;
  int PixelWidth = 0;  ///< 0: the background picture's own
  render::MapFormat Format;
  std::vector<orders::OrderOutcome> Orders;  ///< drawn on the map
};

/// The name of the module's file, in the directory of the program.
constexpr const char* DrawModule = "orbdraw.so";

/// The name of its only function. `result` is the picture's bytes, or a sentence for the user
/// where that is false.
constexpr const char* DrawFunctionName = "OrbDrawMap";
using DrawFunction = bool(const MapRequest& request, std::string& result);

/// Loads the module and lets it draw: the bytes of the picture. Throws FatalError.
std::string DrawMap(const MapRequest& request);

}  // namespace orb::cli

extern "C" orb::cli::DrawFunction OrbDrawMap;
