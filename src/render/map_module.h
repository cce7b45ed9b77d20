#pragma once

#include "history/replay.h"
#include "model/game_state.h"
#include "orders/order_outcome.h"
#include "render/map_format.h"
#include "render/svg_material.h"
#include "settings/map_options.h"

#include <filesystem>
#include <functional>
#include <string>
#include <vector>

namespace orb::render {

/// A map to be drawn as a picture. Asking for one needs nothing of the drawing toolkit: a module
/// of its own does the drawing and is loaded only then, so the other commands start without
/// it and run where the toolkit is not installed.
struct MapRequest {
  const model::GameState& Game;
  settings::MapOptions Options;
  std::filesystem::path DataDirectory;
  int PixelWidth = 0;  ///< 0: the background picture's own
  MapFormat Format = MapFormat::Png;
  std::vector<orders::OrderOutcome> Orders;  ///< drawn on the map
};

/// An animation to be drawn, as an animated GIF.
struct AnimationRequest {
  const std::vector<history::Replay>& Replays;  ///< one after the other
  settings::MapOptions Options;
  std::filesystem::path DataDirectory;
  int PixelWidth = 0;  ///< 0: as suits mails and web pages
};

/// Work that needs what a vector drawing takes from the drawing toolkit; its result is a file's
/// bytes.
using SvgWork = std::function<std::string(SvgMaterial& material)>;

/// The name of the module's file, which lies with the programs.
constexpr const char* DrawModule = "orbdraw.so";

/// The names of its functions. `result` is the file's bytes, or a sentence for the user where that
/// is false.
constexpr const char* DrawFunctionName = "OrbDrawMap";
using DrawFunction = bool(const MapRequest& request, std::string& result);
constexpr const char* AnimationFunctionName = "OrbDrawAnimation";
using AnimationFunction = bool(const AnimationRequest& request, std::string& result);
constexpr const char* SvgFunctionName = "OrbWithSvgMaterial";
using SvgFunction = bool(const SvgWork& work, std::string& result);

/// Whether there is a module in that directory.
bool CanDraw(const std::filesystem::path& moduleDirectory);

/// Loads the module from its directory and lets it draw: the bytes of the picture. Throws
/// FatalError.
std::string DrawMap(const MapRequest& request, const std::filesystem::path& moduleDirectory);

/// The same for an animation. Throws FatalError, also where there is nothing to animate.
std::string DrawAnimation(const AnimationRequest& request,
                          const std::filesystem::path& moduleDirectory);

/// The same for work that is done with what the module gives: its result. Throws FatalError, also
/// for what the work throws.
std::string WithSvgMaterial(const SvgWork& work, const std::filesystem::path& moduleDirectory);

}  // namespace orb::render

extern "C" orb::render::DrawFunction OrbDrawMap;
extern "C" orb::render::AnimationFunction OrbDrawAnimation;
extern "C" orb::render::SvgFunction OrbWithSvgMaterial;
