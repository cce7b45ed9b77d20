#include "render/outlines.h"

#include "model/map_files.h"
#include "support/boards.h"
#include "support/directories.h"

#include <gtest/gtest.h>

namespace orb::tests {
namespace {

/// Whether a point lies within an odd number of the outlines.
bool IsInside(const std::vector<render::Outline>& outlines, render::Point point) {
  bool inside = false;
  for (const render::Outline& line : outlines) {
    for (std::size_t i = 0; i < line.size(); ++i) {
      const render::Point a = line[i];
      const render::Point b = line[(i + 1) % line.size()];
      const bool crosses = (a.Y > point.Y) != (b.Y > point.Y);
      if (crosses && point.X < a.X + (point.Y - a.Y) * (b.X - a.X) / (b.Y - a.Y)) inside = !inside;
    }
  }
  return inside;
}

TEST(Outlines, SurroundJustThePixelsOfTheirPlace) {
  const render::HitMap picture = render::LoadHitMap(DataDirectory(), *RealMap(), 1.2);
  const auto outlines = render::OutlinesOf(picture, 2);
  std::size_t corners = 0;
  for (const auto& lines : outlines) {
    for (const auto& line : lines)
      corners += line.size();
  }
  EXPECT_LT(corners, 8000U);
  int seen = 0;
  int wrong = 0;
  for (int y = 5; y < picture.Height(); y += 31) {
    for (int x = 5; x < picture.Width(); x += 31) {
      const auto row = static_cast<std::size_t>(picture.RowAt(x, y));
      const render::Point point{(x + 0.5) / picture.Width(), (y + 0.5) / picture.Height()};
      for (std::size_t other = 0; other < outlines.size(); ++other)
        wrong += IsInside(outlines[other], point) != (other == row) ? 1 : 0;
      ++seen;
    }
  }
  // Within a pixel or two of a border the simpler line may run on the other side.
  EXPECT_LT(wrong, seen / 50);
}

}  // namespace
}  // namespace orb::tests
