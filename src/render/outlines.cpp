#include "render/outlines.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdint>
#include <span>

namespace orb::render {
namespace {

/// A corner of pixels.
struct Corner {
  int X = 0, Y = 0;

  bool operator==(const Corner&) const = default;
};

/// What is smaller, in pixels, is left out.
constexpr double LeastArea = 60;

/// East, south, west, north.
constexpr std::array<Corner, 4> Steps = {{{1, 0}, {0, 1}, {-1, 0}, {0, -1}}};

/// The pixels to the right and to the left of the step ahead, from the corner.
constexpr std::array<Corner, 4> RightAhead = {{{0, 0}, {-1, 0}, {-1, -1}, {0, -1}}};
constexpr std::array<Corner, 4> LeftAhead = {{{0, -1}, {0, 0}, {-1, 0}, {-1, -1}}};

double Area(const std::vector<Corner>& line) {
  double twice = 0;
  for (std::size_t i = 0; i < line.size(); ++i) {
    const Corner& next = line[(i + 1) % line.size()];
    twice += static_cast<double>(line[i].X) * next.Y - static_cast<double>(next.X) * line[i].Y;
  }
  return std::abs(twice) / 2;
}

double Distance(Corner point, Corner from, Corner to) {
  const double x = to.X - from.X;
  const double y = to.Y - from.Y;
  const double length = std::hypot(x, y);
  const double dx = point.X - from.X;
  const double dy = point.Y - from.Y;
  return length == 0 ? std::hypot(dx, dy) : std::abs(x * dy - y * dx) / length;
}

/// Keeps of an open line its ends and what is needed to stay near it (Douglas and Peucker).
void Simplify(std::span<const Corner> line, double tolerance, std::vector<Corner>& kept) {
  double furthest = 0;
  std::size_t at = 0;
  for (std::size_t i = 1; i + 1 < line.size(); ++i) {
    const double distance = Distance(line[i], line.front(), line.back());
    if (distance <= furthest) continue;
    furthest = distance;
    at = i;
  }
  if (furthest <= tolerance) {
    kept.push_back(line.front());
    return;
  }
  Simplify(line.first(at + 1), tolerance, kept);
  Simplify(line.subspan(at), tolerance, kept);
}

/// A closed line falls into two open ones at the corner furthest from its first.
std::vector<Corner> SimplifiedLoop(std::vector<Corner> loop, double tolerance) {
  const Corner first = loop.front();
  const auto furthest = std::ranges::max_element(loop, {}, [first](const Corner& corner) {
    return std::hypot(corner.X - first.X, corner.Y - first.Y);
  });
  const auto half = static_cast<std::size_t>(furthest - loop.begin());
  loop.push_back(first);
  std::vector<Corner> kept;
  const std::span<const Corner> line(loop);
  Simplify(line.first(half + 1), tolerance, kept);
  Simplify(line.subspan(half), tolerance, kept);
  return kept;
}

class Tracer {
 public:
  explicit Tracer(const HitMap& picture)
      : picture_(picture),
        seen_(static_cast<std::size_t>(picture.Width()) *
              static_cast<std::size_t>(picture.Height())) {}

  /// Whether an outline that was not followed yet runs eastwards above the pixel.
  bool BeginsAt(Corner pixel) const {
    return !seen_[Index(pixel)] && At(pixel) != At({pixel.X, pixel.Y - 1});
  }

  /// Follows the outline of the pixel's location, keeping that to the right.
  std::vector<Corner> Follow(Corner start) {
    const int row = At(start);
    std::vector<Corner> line;
    Corner at = start;
    std::size_t direction = 0;
    do {
      const auto isOwn = [&](Corner step) { return At({at.X + step.X, at.Y + step.Y}) == row; };
      if (!isOwn(RightAhead[direction])) {
        direction = (direction + 1) % 4;
        line.push_back(at);
      } else if (isOwn(LeftAhead[direction])) {
        direction = (direction + 3) % 4;
        line.push_back(at);
      } else {
        if (direction == 0) seen_[Index(at)] = true;
        at = {at.X + Steps[direction].X, at.Y + Steps[direction].Y};
      }
    } while (at != start || direction != 0);
    return line;
  }

 private:
  /// Beside the picture there is no location, not even none.
  int At(Corner pixel) const {
    const bool inside =
        pixel.X >= 0 && pixel.Y >= 0 && pixel.X < picture_.Width() && pixel.Y < picture_.Height();
    return inside ? picture_.RowAt(pixel.X, pixel.Y) : -1;
  }

  std::size_t Index(Corner pixel) const {
    return static_cast<std::size_t>(pixel.Y) * static_cast<std::size_t>(picture_.Width()) +
           static_cast<std::size_t>(pixel.X);
  }

  const HitMap& picture_;
  std::vector<bool> seen_;  ///< pixels above which an outline was followed
};

}  // namespace

std::vector<std::vector<Outline>> OutlinesOf(const HitMap& picture, double tolerance) {
  std::vector<std::vector<Outline>> outlines;
  Tracer tracer(picture);
  for (int y = 0; y < picture.Height(); ++y) {
    for (int x = 0; x < picture.Width(); ++x) {
      if (!tracer.BeginsAt({x, y})) continue;
      std::vector<Corner> line = tracer.Follow({x, y});
      if (Area(line) < LeastArea) continue;
      Outline outline;
      for (const Corner& corner : SimplifiedLoop(std::move(line), tolerance)) {
        outline.push_back({static_cast<double>(corner.X) / picture.Width(),
                           static_cast<double>(corner.Y) / picture.Height()});
      }
      const auto row = static_cast<std::size_t>(picture.RowAt(x, y));
      if (outlines.size() <= row) outlines.resize(row + 1);
      if (outline.size() > 2) outlines[row].push_back(std::move(outline));
    }
  }
  return outlines;
}

}  // namespace orb::render
