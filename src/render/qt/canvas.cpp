#include "render/qt/canvas.h"

#include "model/errors.h"
#include "render/map_format.h"
#include "render/surface.h"

#include <algorithm>
#include <string>

namespace orb::render {

namespace {

/// Symbols that are larger beside the map than this run into each other.
constexpr double MostGrowth = 1.2;

}  // namespace

QSizeF TwipsFor(QSizeF naturalTwips, double pixelWidth) {
  constexpr double readable = 0.8;
  const double scale = pixelWidth * TwipsPerPixel / naturalTwips.width();
  return naturalTwips / std::clamp(readable / scale, 1.0, MostGrowth);
}

QSizeF TwipsForPaper(QSizeF naturalTwips, double inches) {
  constexpr double twipsPerInch = 1440;
  constexpr double leastPoints = 7;
  constexpr double labelPoints = 8;
  const double points = labelPoints * inches * twipsPerInch / naturalTwips.width();
  return naturalTwips / std::max(leastPoints / points, 1.0);
}

Canvas PlanCanvas(const std::filesystem::path& background, int pixelWidth, PictureCache& pictures) {
  if (pixelWidth < 0 || pixelWidth > MaxPixelWidth) {
    throw model::FileError("The map cannot be " + std::to_string(pixelWidth) +
                           " pixels wide; expected 1 to " + std::to_string(MaxPixelWidth) +
                           ", or 0 for its own width.");
  }
  const QImage& picture = pictures.Picture(background);
  const int width = pixelWidth == 0 ? picture.width() : pixelWidth;
  // A map of a few pixels' width still has a row.
  const int height =
      std::max(1, qRound(static_cast<double>(width) * picture.height() / picture.width()));
  return {TwipsFor(NaturalSize(picture), width), QSize(width, height), Resolution(picture)};
}

QImage NewImage(const Canvas& canvas) {
  QImage image(canvas.Pixels, QImage::Format_RGB32);
  if (image.isNull()) throw model::FileError("There is not enough memory for a map of that size.");
  // Picture files count pixels per metre; programs that print them go by this.
  image.setDotsPerMeterX(qRound(canvas.PixelsPerInch / 0.0254));
  image.setDotsPerMeterY(image.dotsPerMeterX());
  return image;
}

}  // namespace orb::render
