#include "render/hit_map.h"
#include "render/qt/picture_cache.h"
#include "support/fuzzing.h"

#include <array>
#include <cmath>

// The input is a bitmap: the map's background, and the picture that tells where a click falls.

namespace orb::fuzz {
namespace {

void ReadBackground(std::string_view bytes) {
  static const MemoryFile file;
  file.Write(bytes);
  // A cache of its own, which cannot know the file.
  render::PictureCache pictures;
  IsAccepted([&] {
    const QImage& picture = pictures.Picture(file.Path());
    Require(!picture.isNull() && picture.format() == QImage::Format_RGB32, "no picture");
    const QSizeF size = render::NaturalSize(picture);
    Require(std::isfinite(size.width()) && size.width() > 0, "a width of nothing");
    Require(std::isfinite(size.height()) && size.height() > 0, "a height of nothing");
    Require(pictures.Scaled(file.Path(), {40, 30}).size() == QSize(40, 30), "not scaled");
  });
}

void ReadHitMap(std::string_view bytes) {
  const model::Map& map = *RealMap();
  constexpr std::array<double, 6> points{-0.1, 0, 0.3, 0.999999, 1, 1.1};
  IsAccepted([&] {
    const render::HitMap hits(bytes, "maphit.bmp", map.Provinces.Count());
    for (const double x : points) {
      for (const double y : points) {
        const int place = hits.LocationAt(StartingGame(), {x, y}, "F");
        Require(place >= 0 && place <= map.Provinces.Count(), "no place of the map");
      }
    }
  });
}

}  // namespace
}  // namespace orb::fuzz

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string_view bytes = orb::fuzz::Text(data, size);
  orb::fuzz::ReadBackground(bytes);
  orb::fuzz::ReadHitMap(bytes);
  return 0;
}
