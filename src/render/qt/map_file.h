#pragma once

#include "model/game_state.h"
#include "orders/order_outcome.h"
#include "render/map_format.h"
#include "render/qt/picture_cache.h"
#include "settings/map_options.h"

#include <QImage>
#include <QPainter>
#include <QRectF>

#include <filesystem>
#include <span>
#include <string>

namespace orb::render {

/// The map as a picture of the given width in pixels (0: the background's own). The width scales
/// the whole drawing, symbols and texts as TwipsFor tells. Orders are drawn as RenderMap does.
/// Throws what RenderMap throws, FileError also for a width outside 0..MaxPixelWidth.
QImage MapImage(const model::GameState& game, const settings::MapOptions& options,
                const std::filesystem::path& dataDirectory, int pixelWidth, PictureCache& pictures,
                std::span<const orders::OrderOutcome> orders = {});

/// Draws the map over a rectangle of a page, in the painter's coordinates: vectors over the bitmap,
/// letters of at least 7 points. Throws what RenderMap throws.
void PrintMap(const model::GameState& game, const settings::MapOptions& options,
              const std::filesystem::path& dataDirectory, PictureCache& pictures, QPainter& painter,
              const QRectF& target, std::span<const orders::OrderOutcome> orders = {});

/// The bytes of a file that holds the map in a format: Bmp is uncompressed, Svg and Pdf hold
/// vectors over the bitmap. Throws as MapImage does.
std::string MapBytes(const model::GameState& game, const settings::MapOptions& options,
                     const std::filesystem::path& dataDirectory, int pixelWidth,
                     PictureCache& pictures, MapFormat format,
                     std::span<const orders::OrderOutcome> orders = {});

}  // namespace orb::render
