#include "render/qt/canvas.h"

#include "model/errors.h"
#include "render/map_format.h"

#include <algorithm>
#include <string>

namespace orb::render {

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
  return {NaturalSize(picture), QSize(width, height), Resolution(picture)};
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
