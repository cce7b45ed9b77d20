#include "shape.h"

#include <array>
#include <cstdarg>
#include <cstdio>
#include <geos_c.h>
#include <stdexcept>
#include <string>

namespace mapmaker {
namespace {

std::string& LastMessage() {
  static std::string message;
  return message;
}

void IgnoreNotice(const char*, ...) {}

void KeepError(const char* format, ...) {
  std::array<char, 500> text{};
  va_list values;
  va_start(values, format);
  // NOLINTNEXTLINE(clang-analyzer-valist.Uninitialized): va_start has just set it
  std::vsnprintf(text.data(), text.size(), format, values);
  va_end(values);
  LastMessage() = text.data();
}

/// Readies the library on first use.
void Start() {
  static const bool started = [] {
    initGEOS(IgnoreNotice, KeepError);
    return true;
  }();
  static_cast<void>(started);
}

GEOSGeometry* Checked(GEOSGeometry* geometry) {
  if (geometry == nullptr) throw std::runtime_error("geometry operation failed: " + LastMessage());
  return geometry;
}

GEOSCoordSequence* Sequence(const Line& line) {
  GEOSCoordSequence* sequence = GEOSCoordSeq_create(static_cast<unsigned>(line.size()), 2);
  for (unsigned i = 0; i < line.size(); ++i)
    GEOSCoordSeq_setXY(sequence, i, line[i].X, line[i].Y);
  return sequence;
}

Line Points(const GEOSGeometry* lineString) {
  const GEOSCoordSequence* sequence = GEOSGeom_getCoordSeq(lineString);
  unsigned size = 0;
  GEOSCoordSeq_getSize(sequence, &size);
  Line line(size);
  for (unsigned i = 0; i < size; ++i)
    GEOSCoordSeq_getXY(sequence, i, &line[i].X, &line[i].Y);
  return line;
}

/// Calls `visit` with every single geometry that `geometry` is made of.
void ForEachPart(const GEOSGeometry* geometry,
                 const std::function<void(const GEOSGeometry*)>& visit) {
  if (GEOSGeomTypeId(geometry) < GEOS_MULTIPOINT) {
    visit(geometry);
    return;
  }
  for (int i = 0; i < GEOSGetNumGeometries(geometry); ++i)
    ForEachPart(GEOSGetGeometryN(geometry, i), visit);
}

/// The parts of one type (polygons or line strings) as the multi-part geometry of that type.
GEOSGeometry* PartsOfType(const GEOSGeometry* geometry, int partType, int type) {
  std::vector<GEOSGeometry*> parts;
  ForEachPart(geometry, [&](const GEOSGeometry* part) {
    const bool line = GEOSGeomTypeId(part) == GEOS_LINEARRING;
    if (GEOSisEmpty(part) == 0 && (line ? GEOS_LINESTRING : GEOSGeomTypeId(part)) == partType)
      parts.push_back(GEOSGeom_clone(part));
  });
  return Checked(
      GEOSGeom_createCollection(type, parts.data(), static_cast<unsigned>(parts.size())));
}

/// What counts of a mixed result: its areas, or without any its lines. The library takes no mixed
/// geometry in its further operations.
GEOSGeometry* Tidied(GEOSGeometry* owned) {
  if (owned == nullptr || GEOSGeomTypeId(owned) != GEOS_GEOMETRYCOLLECTION) return owned;
  GEOSGeometry* areas = PartsOfType(owned, GEOS_POLYGON, GEOS_MULTIPOLYGON);
  if (GEOSisEmpty(areas) == 1) {
    GEOSGeom_destroy(areas);
    areas = PartsOfType(owned, GEOS_LINESTRING, GEOS_MULTILINESTRING);
  }
  GEOSGeom_destroy(owned);
  return areas;
}

}  // namespace

Shape::Shape() : Shape((Start(), GEOSGeom_createEmptyPolygon())) {}

Shape::Shape(GEOSGeom_t* owned) : m_geometry(Checked(Tidied(owned)), GEOSGeom_destroy) {}

Shape Shape::Polygon(const Line& ring) {
  Start();
  Line closed = ring;
  if (closed.front().X != closed.back().X || closed.front().Y != closed.back().Y)
    closed.push_back(closed.front());
  GEOSGeometry* shell = Checked(GEOSGeom_createLinearRing(Sequence(closed)));
  return Shape(GEOSGeom_createPolygon(shell, nullptr, 0));
}

Shape Shape::Rectangle(double left, double top, double right, double bottom) {
  return Polygon({{left, top}, {right, top}, {right, bottom}, {left, bottom}});
}

Shape Shape::LineString(const Line& line) {
  Start();
  return Shape(GEOSGeom_createLineString(Sequence(line)));
}

Shape Shape::FromWkb(std::span<const unsigned char> wkb) {
  Start();
  return Shape(GEOSGeomFromWKB_buf(wkb.data(), wkb.size()));
}

Shape Shape::Collection(const std::vector<Shape>& parts) {
  Start();
  std::vector<GEOSGeometry*> owned;
  for (const Shape& part : parts) {
    ForEachPart(part.m_geometry.get(), [&](const GEOSGeometry* single) {
      if (GEOSisEmpty(single) == 0) owned.push_back(GEOSGeom_clone(single));
    });
  }
  return Shape(GEOSGeom_createCollection(GEOS_GEOMETRYCOLLECTION, owned.data(),
                                         static_cast<unsigned>(owned.size())));
}

Shape Shape::Intersection(const Shape& other) const {
  return Shape(GEOSIntersection(m_geometry.get(), other.m_geometry.get()));
}

Shape Shape::Difference(const Shape& other) const {
  return Shape(GEOSDifference(m_geometry.get(), other.m_geometry.get()));
}

Shape Shape::Union(const Shape& other) const {
  return Shape(GEOSUnion(m_geometry.get(), other.m_geometry.get()));
}

Shape Shape::Merged(double grid) const {
  return Shape(grid > 0 ? GEOSUnaryUnionPrec(m_geometry.get(), grid)
                        : GEOSUnaryUnion(m_geometry.get()));
}

Shape Shape::Buffer(double distance) const {
  constexpr int stepsAQuarter = 5;
  return Shape(GEOSBuffer(m_geometry.get(), distance, stepsAQuarter));
}

Shape Shape::Boundary() const {
  return Shape(GEOSBoundary(m_geometry.get()));
}

Shape Shape::Densified(double step) const {
  return Shape(GEOSDensify(m_geometry.get(), step));
}

Shape Shape::Simplified(double tolerance) const {
  return Shape(GEOSTopologyPreserveSimplify(m_geometry.get(), tolerance));
}

Shape Shape::MadeValid() const {
  return Shape(GEOSMakeValid(m_geometry.get()));
}

std::vector<Shape> Shape::Faces() const {
  const GEOSGeometry* lines = m_geometry.get();
  return Shape(GEOSPolygonize(&lines, 1)).Polygons();
}

std::vector<Line> Shape::JoinedLines() const {
  return Shape(GEOSLineMerge(m_geometry.get())).Lines();
}

Shape Shape::Transformed(const std::function<Point(Point)>& map) const {
  struct Context {
    const std::function<Point(Point)>& Map;
  };
  Context context{map};
  return Shape(GEOSGeom_transformXY(
      m_geometry.get(),
      [](double* x, double* y, void* data) {
        const Point mapped = static_cast<Context*>(data)->Map({*x, *y});
        *x = mapped.X;
        *y = mapped.Y;
        return 1;
      },
      &context));
}

bool Shape::IsEmpty() const {
  return GEOSisEmpty(m_geometry.get()) == 1;
}

bool Shape::Contains(Point point) const {
  const Shape probe(GEOSGeom_createPointFromXY(point.X, point.Y));
  return GEOSIntersects(m_geometry.get(), probe.m_geometry.get()) == 1;
}

double Shape::Area() const {
  double area = 0;
  GEOSArea(m_geometry.get(), &area);
  return area;
}

Box Shape::Bounds() const {
  Box box;
  GEOSGeom_getExtent(m_geometry.get(), &box.Left, &box.Top, &box.Right, &box.Bottom);
  return box;
}

Point Shape::PointInside() const {
  const Shape inside(GEOSPointOnSurface(m_geometry.get()));
  Point point;
  GEOSGeomGetX(inside.m_geometry.get(), &point.X);
  GEOSGeomGetY(inside.m_geometry.get(), &point.Y);
  return point;
}

std::vector<Shape> Shape::Polygons() const {
  std::vector<Shape> polygons;
  ForEachPart(m_geometry.get(), [&](const GEOSGeometry* part) {
    if (GEOSGeomTypeId(part) == GEOS_POLYGON && GEOSisEmpty(part) == 0)
      polygons.push_back(Shape(GEOSGeom_clone(part)));
  });
  return polygons;
}

std::vector<Line> Shape::Rings() const {
  std::vector<Line> rings;
  ForEachPart(m_geometry.get(), [&](const GEOSGeometry* part) {
    if (GEOSGeomTypeId(part) != GEOS_POLYGON || GEOSisEmpty(part) != 0) return;
    rings.push_back(Points(GEOSGetExteriorRing(part)));
    for (int i = 0; i < GEOSGetNumInteriorRings(part); ++i)
      rings.push_back(Points(GEOSGetInteriorRingN(part, i)));
  });
  return rings;
}

std::vector<Line> Shape::Lines() const {
  std::vector<Line> lines;
  ForEachPart(m_geometry.get(), [&](const GEOSGeometry* part) {
    const int type = GEOSGeomTypeId(part);
    if ((type == GEOS_LINESTRING || type == GEOS_LINEARRING) && GEOSisEmpty(part) == 0)
      lines.push_back(Points(part));
  });
  return lines;
}

}  // namespace mapmaker
