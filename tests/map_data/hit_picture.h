#pragma once

#include "model/map.h"

#include <cstdint>
#include <filesystem>
#include <vector>

namespace orb::tests {

/// The picture of the same shape as the map whose pixels are rows of prov.dat, 0 for none.
struct HitPicture {
  int Width = 0, Height = 0;
  std::vector<std::uint8_t> Rows;  ///< line by line, the top line first

  std::size_t Index(int x, int y) const {
    return static_cast<std::size_t>(y) * static_cast<std::size_t>(Width) +
           static_cast<std::size_t>(x);
  }
  int At(int x, int y) const { return Rows[Index(x, y)]; }
};

/// The pixels of a bitmap that the program's hit test accepts and that runs from the bottom up;
/// asking the hit test for each would take seconds.
HitPicture ReadHitPicture(const std::filesystem::path& path);

/// The same picture as a fleet sees it: the shore of a province with coasts falls into pieces that
/// hang together, and each piece gets the row of the coast whose unit point is nearest to it. What
/// lies inland keeps the province's own row.
HitPicture SplitCoasts(const HitPicture& picture, const model::Map& map);

/// Whether the row is a sea: neither it nor, for a coast, its province can hold an army.
bool IsWater(const model::Map& map, int row);

}  // namespace orb::tests
