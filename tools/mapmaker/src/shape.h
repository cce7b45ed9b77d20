#pragma once

#include <functional>
#include <memory>
#include <span>
#include <vector>

struct GEOSGeom_t;

namespace mapmaker {

struct Point {
  double X = 0;
  double Y = 0;
};

struct Box {
  double Left = 0, Top = 0, Right = 0, Bottom = 0;
};

using Line = std::vector<Point>;

/// An immutable planar geometry; copies share it. An operation that fails throws
/// std::runtime_error.
class Shape {
 public:
  /// The empty geometry.
  Shape();
  /// The polygon of one ring; the ring need not be closed.
  static Shape Polygon(const Line& ring);
  static Shape Rectangle(double left, double top, double right, double bottom);
  static Shape LineString(const Line& line);
  static Shape FromWkb(std::span<const unsigned char> wkb);
  /// The areas among the parts, or if there are none the lines, side by side and not merged.
  static Shape Collection(const std::vector<Shape>& parts);

  [[nodiscard]] Shape Intersection(const Shape& other) const;
  [[nodiscard]] Shape Difference(const Shape& other) const;
  [[nodiscard]] Shape Union(const Shape& other) const;
  /// All parts merged (areas dissolved, lines noded), the coordinates rounded to `grid`; 0 keeps
  /// them.
  [[nodiscard]] Shape Merged(double grid = 0) const;
  [[nodiscard]] Shape Buffer(double distance) const;
  [[nodiscard]] Shape Boundary() const;
  [[nodiscard]] Shape Densified(double step) const;
  [[nodiscard]] Shape Simplified(double tolerance) const;
  [[nodiscard]] Shape MadeValid() const;
  /// The faces between the lines of this shape, which must be noded.
  [[nodiscard]] std::vector<Shape> Faces() const;
  /// The lines of this shape joined through every point where just two of them meet.
  [[nodiscard]] std::vector<Line> JoinedLines() const;
  /// Every point mapped by `map`.
  [[nodiscard]] Shape Transformed(const std::function<Point(Point)>& map) const;

  [[nodiscard]] bool IsEmpty() const;
  [[nodiscard]] bool Contains(Point point) const;
  [[nodiscard]] double Area() const;
  [[nodiscard]] Box Bounds() const;
  [[nodiscard]] Point PointInside() const;
  /// The polygons of this shape, each by itself.
  [[nodiscard]] std::vector<Shape> Polygons() const;
  /// All rings of all polygons, closed.
  [[nodiscard]] std::vector<Line> Rings() const;
  /// All line strings.
  [[nodiscard]] std::vector<Line> Lines() const;

 private:
  explicit Shape(GEOSGeom_t* owned);

  std::shared_ptr<GEOSGeom_t> m_geometry;
};

}  // namespace mapmaker
