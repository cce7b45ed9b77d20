#include "coverage.h"

#include <algorithm>
#include <stdexcept>

namespace mapmaker {
namespace {

/// Rounding of all coordinates, so that areas that touch share their points.
constexpr double Grid = 0.001;

/// A polygon and the area that a face inside it belongs to.
struct Claim {
  Shape Extent;
  int Owner = -1;
  Box Bounds = Extent.Bounds();

  [[nodiscard]] bool Holds(Point point) const {
    return point.X >= Bounds.Left && point.X <= Bounds.Right && point.Y >= Bounds.Top &&
           point.Y <= Bounds.Bottom && Extent.Contains(point);
  }
};

void AddClaims(std::vector<Claim>& claims, const Shape& shape, int owner) {
  for (const Shape& polygon : shape.Polygons())
    claims.push_back({polygon, owner});
}

Shape Sheet() {
  return Shape::Rectangle(-MapMargin, -MapMargin, MapWidth + MapMargin, MapHeight + MapMargin);
}

/// Cuts the sheet along `lines`; each face goes to the first claim that holds it.
Coverage Partition(Coverage areas, const std::vector<Shape>& lines,
                   const std::vector<Claim>& claims) {
  const Shape sheet = Sheet();
  std::vector<std::vector<Shape>> faces(areas.size());
  for (const Shape& face : Shape::Collection(lines).Merged(Grid).Faces()) {
    const Point inside = face.PointInside();
    if (!sheet.Contains(inside)) continue;
    const auto claim = std::find_if(claims.begin(), claims.end(), [&](const Claim& candidate) {
      return candidate.Holds(inside);
    });
    if (claim == claims.end()) throw std::runtime_error("a part of the sheet belongs to no area");
    faces[static_cast<std::size_t>(claim->Owner)].push_back(face);
  }
  for (std::size_t i = 0; i < areas.size(); ++i)
    areas[i].Extent = Shape::Collection(faces[i]).Merged();
  return areas;
}

AreaType ToAreaType(Kind kind) {
  return kind == Kind::Water ? AreaType::Water : AreaType::Land;
}

int IndexOf(const Coverage& areas, const std::string& name) {
  for (std::size_t i = 0; i < areas.size(); ++i) {
    if (areas[i].Name == name) return static_cast<int>(i);
  }
  throw std::runtime_error("no area is called " + name);
}

/// All areas with their names and kinds, as yet empty.
Coverage EmptyAreas(const Tables& tables, const std::map<std::string, Shape>& land) {
  Coverage areas;
  for (const Location& location : tables.Locations)
    areas.push_back({location.Abbreviation, ToAreaType(location.Type), location.Home, {}});
  for (const auto& [name, shape] : land) {
    if (name.starts_with('!')) areas.push_back({name, AreaType::OutOfPlay, {}, {}});
  }
  for (const NamedRing& water : tables.InlandWater)
    areas.push_back({water.Name, AreaType::InlandWater, {}, {}});
  return areas;
}

Shape Projected(const Line& ring, const Projection& projection) {
  Line drawn;
  for (const Point& point : ring)
    drawn.push_back(projection.ToMap(point));
  return Shape::Polygon(drawn);
}

}  // namespace

bool IsLand(const Area& area) {
  return area.Type == AreaType::Land || area.Type == AreaType::OutOfPlay;
}

Coverage MakeCoverage(const Tables& tables, const Projection& projection,
                      const std::map<std::string, Shape>& land) {
  const Coverage areas = EmptyAreas(tables, land);
  std::vector<Claim> claims;
  for (const auto& [name, shape] : land)
    AddClaims(claims, shape, IndexOf(areas, name));
  for (const NamedRing& bridge : tables.Bridges)
    AddClaims(claims, Projected(bridge.Ring, projection), IndexOf(areas, bridge.Area));
  for (const NamedRing& water : tables.InlandWater)
    AddClaims(claims, Projected(water.Ring, projection), IndexOf(areas, water.Name));
  for (const auto& [name, ring] : tables.Seas)
    AddClaims(claims, Projected(ring, projection), IndexOf(areas, name));
  std::vector<Shape> lines{Sheet().Boundary()};
  for (const Claim& claim : claims)
    lines.push_back(claim.Extent.Boundary());
  return Partition(areas, lines, claims);
}

Coverage Rebuilt(const Coverage& old, const std::vector<Arc>& arcs) {
  std::vector<Claim> claims;
  for (std::size_t i = 0; i < old.size(); ++i)
    AddClaims(claims, old[i].Extent, static_cast<int>(i));
  std::vector<Shape> lines{Sheet().Boundary()};
  for (const Arc& arc : arcs)
    lines.push_back(Shape::LineString(arc.Course));
  return Partition(old, lines, claims);
}

Coverage WithInletsClosed(const Coverage& old, double reach) {
  std::vector<Claim> claims;
  std::vector<Claim> inlets;
  std::vector<Claim> water;
  for (std::size_t i = 0; i < old.size(); ++i) {
    const int owner = static_cast<int>(i);
    if (!IsLand(old[i])) {
      AddClaims(water, old[i].Extent, owner);
      continue;
    }
    AddClaims(claims, old[i].Extent, owner);
    AddClaims(inlets, old[i].Extent.Buffer(reach).Buffer(-reach).Difference(old[i].Extent), owner);
  }
  std::vector<Shape> lines{Sheet().Boundary()};
  for (const Area& area : old)
    lines.push_back(area.Extent.Boundary());
  for (const Claim& inlet : inlets)
    lines.push_back(inlet.Extent.Boundary());
  claims.insert(claims.end(), inlets.begin(), inlets.end());
  claims.insert(claims.end(), water.begin(), water.end());
  return Partition(old, lines, claims);
}

}  // namespace mapmaker
