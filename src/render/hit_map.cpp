#include "render/hit_map.h"

#include "model/errors.h"
#include "model/files.h"
#include "model/place.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace orb::render {
namespace {

// A bitmap file: 14 bytes of file header ("BM", at 10 the offset of the pixels), then the picture
// header (at 14 its size, 18 width, 22 height, 28 bits a pixel, 30 compression), a palette, and
// the rows, each filled up to a multiple of four bytes. They run from the bottom row upwards, or
// downwards where the height is negative. Numbers have their low byte first.
constexpr std::size_t HeaderSize = 54;
/// No map is larger, in pixels; the product of two sides also stays within an int.
constexpr int LargestSide = 20000;

/// From a ship's middle to its bow, as a fraction of the map's width.
constexpr double ShipReach = 0.011;

/// Reads numbers of a header known to be long enough.
std::uint32_t Number(std::string_view bytes, std::size_t at, int size) {
  std::uint32_t number = 0;
  for (int i = size - 1; i >= 0; --i) {
    number = number << 8 | static_cast<unsigned char>(bytes[at + static_cast<std::size_t>(i)]);
  }
  return number;
}

struct Layout {
  int Width, Height;
  bool FromTop;
  std::size_t Start, RowSize;
};

[[noreturn]] void Fail(const std::string& fileName, const std::string& found) {
  throw model::FileError(fileName + ": " + found +
                         "; expected an uncompressed bitmap of 8 bits a pixel.");
}

Layout ReadHeader(std::string_view bytes, const std::string& fileName) {
  if (bytes.size() < HeaderSize || bytes.substr(0, 2) != "BM") Fail(fileName, "no bitmap");
  if (Number(bytes, 28, 2) != 8 || Number(bytes, 30, 4) != 0) {
    Fail(fileName, std::to_string(Number(bytes, 28, 2)) + " bits a pixel, compression " +
                       std::to_string(Number(bytes, 30, 4)));
  }
  const auto width = static_cast<std::int32_t>(Number(bytes, 18, 4));
  const auto height = static_cast<std::int32_t>(Number(bytes, 22, 4));
  if (width < 1 || width > LargestSide || height == 0 || height < -LargestSide ||
      height > LargestSide) {
    Fail(fileName, "a picture of " + std::to_string(width) + " by " + std::to_string(height));
  }
  const std::size_t start = Number(bytes, 10, 4);
  const std::size_t rowSize = (static_cast<std::size_t>(width) + 3) / 4 * 4;
  const int rows = std::abs(height);
  if (start < HeaderSize || start > bytes.size() ||
      (bytes.size() - start) / rowSize < static_cast<std::size_t>(rows)) {
    Fail(fileName, "fewer pixels than its header says");
  }
  return {width, rows, height < 0, start, rowSize};
}

/// The square of a distance between fractions, in map heights.
double SquareDistance(Point a, Point b, double aspect) {
  const double x = (a.X - b.X) * aspect;
  const double y = a.Y - b.Y;
  return x * x + y * y;
}

/// The row of the fitting province whose unit point is nearest, or 0 where none fits.
template <class Fits>
int Nearest(const model::Map& map, Point point, double aspect, Fits fits) {
  int nearest = 0;
  double least = std::numeric_limits<double>::infinity();
  for (int row = 1; row <= map.Provinces.Count(); ++row) {
    const model::Province& province = map.Provinces[row];
    const double distance = SquareDistance(point, {province.UnitX, province.UnitY}, aspect);
    if (distance < least && fits(province)) {
      nearest = row;
      least = distance;
    }
  }
  return nearest;
}

}  // namespace

HitMap::HitMap(std::string_view bytes, const std::string& fileName, int provinceCount) {
  const Layout layout = ReadHeader(bytes, fileName);
  width_ = layout.Width;
  height_ = layout.Height;
  aspect_ = static_cast<double>(width_) / height_;
  pixels_.reserve(static_cast<std::size_t>(width_) * static_cast<std::size_t>(height_));
  for (int y = 0; y < height_; ++y) {
    const auto row = static_cast<std::size_t>(layout.FromTop ? y : height_ - 1 - y);
    const auto pixels =
        bytes.substr(layout.Start + row * layout.RowSize, static_cast<std::size_t>(width_));
    pixels_.insert(pixels_.end(), pixels.begin(), pixels.end());
  }
  const int largest = *std::max_element(pixels_.begin(), pixels_.end());
  if (largest > provinceCount) {
    throw model::FileError(fileName + ": location " + std::to_string(largest) +
                           "; expected at most " + std::to_string(provinceCount) + ".");
  }
}

int HitMap::PixelAt(Point point) const {
  // The right and the bottom edge, at fraction 1, still belong to the last pixel.
  const auto pixel = [](double fraction, int size) {
    return static_cast<std::size_t>(std::min(static_cast<int>(fraction * size), size - 1));
  };
  const std::size_t row = pixel(point.Y, height_) * static_cast<std::size_t>(width_);
  return pixels_[row + pixel(point.X, width_)];
}

int HitMap::LocationAt(const model::Map& map, Point point, std::string_view unitType) const {
  return AsSeenBy(map, PlaceAt(map, point), point, unitType);
}

int HitMap::LocationAt(const model::GameState& game, Point point, std::string_view unitType) const {
  const int coast = CoastWithShipAt(game, point);
  return AsSeenBy(*game.Map, coast != 0 ? coast : PlaceAt(*game.Map, point), point, unitType);
}

int HitMap::PlaceAt(const model::Map& map, Point point) const {
  const bool inside = point.X >= 0 && point.X <= 1 && point.Y >= 0 && point.Y <= 1;
  if (!inside) return 0;
  return pixels_.empty() ? Nearest(map, point, aspect_, [](const model::Province&) { return true; })
                         : PixelAt(point);
}

int HitMap::CoastWithShipAt(const model::GameState& game, Point point) const {
  const double reach = ShipReach * aspect_;
  for (const model::Unit& unit : game.Units) {
    const int row = model::FindProvince(*game.Map, unit.Location);
    if (row == 0 || !unit.Status.empty() || !model::IsCoast(unit.Location)) continue;
    const model::Province& coast = game.Map->Provinces[row];
    if (SquareDistance(point, {coast.UnitX, coast.UnitY}, aspect_) <= reach * reach) return row;
  }
  return 0;
}

int HitMap::AsSeenBy(const model::Map& map, int hit, Point point, std::string_view unitType) const {
  if (hit == 0) return 0;
  const std::string& name = map.Provinces[hit].Name;
  const bool forFleet = unitType == "F";
  const int same = Nearest(map, point, aspect_, [&](const model::Province& province) {
    return model::SamePlace(province.Name, name) && model::IsCoast(province.Name) == forFleet;
  });
  return same == 0 ? hit : same;
}

HitMap LoadHitMap(const std::filesystem::path& dataDirectory, const model::Map& map,
                  double aspect) {
  const std::filesystem::path file = dataDirectory / "maphit.bmp";
  std::error_code ignored;
  if (!std::filesystem::exists(file, ignored)) return HitMap(aspect);
  return {model::ReadFile(file), file.string(), map.Provinces.Count()};
}

}  // namespace orb::render
