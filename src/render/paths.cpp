#include "render/paths.h"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace orb::render {
namespace {

constexpr double FullTurn = 2 * std::numbers::pi;

/// The part of a line, as fractions of it, that lies between two values of a coordinate.
struct Clip {
  double First = 0;
  double Last = 1;

  /// Narrows it to where the coordinate, which runs from one value to another, is within bounds.
  void Between(double from, double to, double low, double high) {
    if (from == to) {
      if (from < low || from > high) Last = -1;
      return;
    }
    const auto [enter, leave] =
        std::minmax({(low - from) / (to - from), (high - from) / (to - from)});
    First = std::max(First, enter);
    Last = std::min(Last, leave);
  }
};

}  // namespace

double CommonArea(const Rectangle& a, const Rectangle& b) {
  const double width =
      std::min(a.BottomRight.X, b.BottomRight.X) - std::max(a.TopLeft.X, b.TopLeft.X);
  const double height =
      std::min(a.BottomRight.Y, b.BottomRight.Y) - std::max(a.TopLeft.Y, b.TopLeft.Y);
  return std::max(width, 0.0) * std::max(height, 0.0);
}

Point Moved(Point from, Point direction, double distance) {
  return {from.X + direction.X * distance, from.Y + direction.Y * distance};
}

Point Right(Point direction) {
  return {-direction.Y, direction.X};
}

Point Turned(Point direction, double angle) {
  return {direction.X * std::cos(angle) - direction.Y * std::sin(angle),
          direction.X * std::sin(angle) + direction.Y * std::cos(angle)};
}

double Distance(Point a, Point b) {
  return std::hypot(b.X - a.X, b.Y - a.Y);
}

Point Towards(Point from, Point to) {
  const double length = Distance(from, to);
  if (length == 0) return {1, 0};
  return {(to.X - from.X) / length, (to.Y - from.Y) / length};
}

double LengthOf(const Path& path) {
  double length = 0;
  for (std::size_t i = 1; i < path.size(); ++i)
    length += Distance(path[i - 1], path[i]);
  return length;
}

Path PartOf(const Path& path, double start, double end) {
  Path part;
  double done = 0;
  for (std::size_t i = 1; i < path.size(); ++i) {
    const double length = Distance(path[i - 1], path[i]);
    const double first = std::max(start - done, 0.0);
    const double last = std::min(end - done, length);
    done += length;
    if (length == 0 || first > last) continue;
    const Point along = Towards(path[i - 1], path[i]);
    if (part.empty()) part.push_back(Moved(path[i - 1], along, first));
    part.push_back(Moved(path[i - 1], along, last));
  }
  return part;
}

Spot SpotAt(const Path& path, double distance) {
  Spot spot = {path.back(), {1, 0}};
  for (std::size_t i = 1; i < path.size(); ++i) {
    const double length = Distance(path[i - 1], path[i]);
    if (length == 0) continue;
    const Point along = Towards(path[i - 1], path[i]);
    spot = {Moved(path[i - 1], along, distance), along};
    if (distance <= length) break;
    distance -= length;
  }
  return spot;
}

bool Touches(const Path& path, const Rectangle& rectangle, double reach) {
  const auto& [topLeft, bottomRight] = rectangle;
  if (topLeft.X > bottomRight.X) return false;
  for (std::size_t i = 1; i < path.size(); ++i) {
    const Point from = path[i - 1];
    const Point to = path[i];
    Clip inside;
    inside.Between(from.X, to.X, topLeft.X - reach, bottomRight.X + reach);
    inside.Between(from.Y, to.Y, topLeft.Y - reach, bottomRight.Y + reach);
    if (inside.First <= inside.Last) return true;
  }
  return false;
}

Path RingPath(Point centre, double radius) {
  constexpr int corners = 32;
  Path path;
  for (int i = 0; i <= corners; ++i)
    path.push_back(Moved(centre, Turned({1, 0}, FullTurn * i / corners), radius));
  return path;
}

Path WavePath(Point centre) {
  constexpr int steps = 48;
  constexpr double crests = 3;
  constexpr double height = 1.8 * TwipsPerPixel;
  constexpr double width = 24 * TwipsPerPixel;
  Path path;
  for (int i = 0; i <= steps; ++i) {
    const double part = static_cast<double>(i) / steps;
    path.push_back(
        {centre.X + (part - 0.5) * width, centre.Y + height * std::cos(FullTurn * crests * part)});
  }
  return path;
}

Path CurvePath(Point from, Point bend, Point to) {
  constexpr int steps = 16;
  Path path;
  for (int i = 0; i <= steps; ++i) {
    const double part = static_cast<double>(i) / steps;
    // De Casteljau's construction of a quadratic Bézier curve.
    const Point out = Moved(from, {bend.X - from.X, bend.Y - from.Y}, part);
    const Point in = Moved(bend, {to.X - bend.X, to.Y - bend.Y}, part);
    path.push_back(Moved(out, {in.X - out.X, in.Y - out.Y}, part));
  }
  return path;
}

}  // namespace orb::render
