#pragma once

#include "render/qt/picture_cache.h"

#include <QImage>
#include <QSize>
#include <QSizeF>

#include <filesystem>

namespace orb::render {

/// The size of a map on some device: the same drawing on more or fewer pixels.
struct Canvas {
  QSizeF Twips;  ///< of the drawing
  QSize Pixels;
  double PixelsPerInch = 0;
};

/// The size in twips of the drawing on a picture so many pixels wide. Symbols and letters shrink
/// with the map, but less than it below four fifths of its natural size: nobody could read them.
QSizeF TwipsFor(QSizeF naturalTwips, double pixelWidth);

/// The same on paper, whose letters are at least 7 points high.
QSizeF TwipsForPaper(QSizeF naturalTwips, double inches);

/// The canvas of a map with this background, some pixels wide (0: the background's own width).
/// Throws FileError for a width outside 0..MaxPixelWidth and a missing or broken background.
Canvas PlanCanvas(const std::filesystem::path& background, int pixelWidth, PictureCache& pictures);

/// A picture of the canvas's size, not painted yet. Throws FileError when there is no memory.
QImage NewImage(const Canvas& canvas);

}  // namespace orb::render
