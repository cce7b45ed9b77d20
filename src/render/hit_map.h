#pragma once

#include "model/game_state.h"
#include "render/surface.h"

#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

namespace orb::render {

/// Tells the location under a point of the map: from a picture whose pixel values are rows of the
/// province table (0: none), or without one by the nearest unit point.
class HitMap {
 public:
  /// Without a picture; the aspect is the map's width divided by its height.
  explicit HitMap(double aspect) : aspect_(aspect) {}

  /// From an uncompressed bitmap of 8 bits a pixel. Throws FileError, naming the file, for
  /// anything else and for a value past provinceCount.
  HitMap(std::string_view bytes, const std::string& fileName, int provinceCount);

  /// The size of the picture in pixels; 0 by 0 without one.
  int Width() const { return width_; }
  int Height() const { return height_; }

  /// The row of the location that a pixel of the picture shows; 0 for none and beside the picture.
  int RowAt(int x, int y) const {
    const bool inside = x >= 0 && y >= 0 && x < width_ && y < height_;
    return inside ? pixels_[static_cast<std::size_t>(y) * static_cast<std::size_t>(width_) +
                            static_cast<std::size_t>(x)]
                  : 0;
  }

  /// The row of the location under the point (fractions of the map's width and height), or 0
  /// for none. In a province with coasts a fleet ("F") gets the coast whose unit point is nearest,
  /// anything else the province itself.
  int LocationAt(const model::Map& map, Point point, std::string_view unitType) const;

  /// The same for a map with units on it: a fleet on a coast is drawn beside the land, and where
  /// its ship is, the coast is meant.
  int LocationAt(const model::GameState& game, Point point, std::string_view unitType) const;

  /// What a location is for a unit that is sent to the point in it: a fleet gets the coast whose
  /// unit point is nearest, anything else the province. 0 stays 0.
  int AsSeenBy(const model::Map& map, int row, Point point, std::string_view unitType) const;

 private:
  int PlaceAt(const model::Map& map, Point point) const;
  int PixelAt(Point point) const;
  int CoastWithShipAt(const model::GameState& game, Point point) const;

  double aspect_ = 1;
  int width_ = 0, height_ = 0;
  std::vector<std::uint8_t> pixels_;
};

/// Reads maphit.bmp from the directory; where it is missing, a map without a picture. Throws
/// FileError for a broken one.
HitMap LoadHitMap(const std::filesystem::path& dataDirectory, const model::Map& map, double aspect);

}  // namespace orb::render
