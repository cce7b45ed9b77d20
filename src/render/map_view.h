#pragma once

#include "model/game_state.h"
#include "orders/order_outcome.h"
#include "render/surface.h"
#include "settings/map_options.h"

#include <filesystem>
#include <span>

namespace orb::render {

/// The background bitmap of the mode in the directory: map.bmp, mapgrey.bmp or mapbw.bmp.
std::filesystem::path BackgroundFile(const std::filesystem::path& dataDirectory,
                                     settings::MapMode mode);

/// Draws the whole situation, with orders on it if any are given; what was on the surface is
/// painted over. Throws FileError for a missing or broken bitmap before anything is drawn,
/// IndexOutOfRange for a unit whose location or power is unknown.
void RenderMap(const model::GameState& game, const settings::MapOptions& options,
               const std::filesystem::path& dataDirectory, Surface& surface,
               std::span<const orders::OrderOutcome> orders = {});

/// What RenderMap draws before the units: background, labels, captions, marks of the retreats
/// stage. Throws FileError as RenderMap does.
void DrawBelowUnits(const model::GameState& game, const settings::MapOptions& options,
                    const std::filesystem::path& dataDirectory, Surface& surface);

/// What RenderMap draws over the units: centre owners and the legend.
void DrawAboveUnits(const model::GameState& game, const settings::MapOptions& options,
                    Surface& surface);

}  // namespace orb::render
