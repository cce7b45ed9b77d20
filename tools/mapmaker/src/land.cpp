#include "land.h"

#include <ogrsf_frmts.h>
#include <set>
#include <sstream>
#include <stdexcept>

namespace mapmaker {
namespace {

/// Rounding of the source's coordinates in map pixels: closes the finest cracks.
constexpr double Grid = 0.01;
/// Longest edge in degrees before the projection bends it.
constexpr double Step = 0.25;

using Subdivisions = std::map<std::string, std::vector<Shape>>;

Shape ToShape(const OGRGeometry& geometry) {
  std::vector<unsigned char> wkb(geometry.WkbSize());
  geometry.exportToWkb(wkbNDR, wkb.data());
  return Shape::FromWkb(wkb).MadeValid();
}

/// The shapes of one country's file by their code.
Subdivisions ReadCountry(const QString& path) {
  const GDALDatasetUniquePtr file(
      GDALDataset::Open(path.toUtf8().constData(), GDAL_OF_VECTOR | GDAL_OF_READONLY));
  if (!file) throw std::runtime_error(path.toStdString() + ": cannot be read");
  Subdivisions subdivisions;
  for (const OGRFeatureUniquePtr& feature : *file->GetLayer(0)) {
    if (const OGRGeometry* geometry = feature->GetGeometryRef())
      subdivisions[feature->GetFieldAsString("adm1_code")].push_back(ToShape(*geometry));
  }
  return subdivisions;
}

std::vector<Shape> Selected(const Subdivisions& country, const Piece& piece) {
  std::vector<Shape> shapes;
  for (const auto& [code, parts] : country) {
    if (piece.Code == "*" || piece.Code == code)
      shapes.insert(shapes.end(), parts.begin(), parts.end());
  }
  if (shapes.empty())
    throw std::runtime_error("regions.csv: no " + piece.Code + " in " + piece.Country);
  return shapes;
}

/// The part of `shape` that a rule of regions.csv keeps.
Shape Cut(const Shape& shape, const std::string& rule, const std::map<std::string, Line>& cuts) {
  if (rule.empty()) return shape;
  const std::size_t colon = rule.find(':');
  std::vector<Shape> rings;
  std::istringstream names(rule.substr(colon + 1));
  for (std::string name; std::getline(names, name, '+');)
    rings.push_back(Shape::Polygon(cuts.at(name)));
  const Shape ring = Shape::Collection(rings).Merged();
  return rule.starts_with("in:") ? shape.Intersection(ring) : shape.Difference(ring);
}

}  // namespace

std::map<std::string, Shape> ReadLand(const Tables& tables, const Projection& projection,
                                      const QString& geometry) {
  GDALAllRegister();
  const Frame& frame = tables.Frame;
  const Shape clip =
      Shape::Rectangle(frame.ClipWest, frame.ClipSouth, frame.ClipEast, frame.ClipNorth);
  const Shape sheet =
      Shape::Rectangle(-MapMargin, -MapMargin, MapWidth + MapMargin, MapHeight + MapMargin);
  std::map<std::string, Subdivisions> countries;
  std::map<std::string, std::vector<Shape>> parts;
  for (const Piece& piece : tables.Pieces) {
    if (!countries.contains(piece.Country)) {
      countries[piece.Country] =
          ReadCountry(geometry + "/" + QString::fromStdString(piece.Country) + ".json");
    }
    for (const Shape& shape : Selected(countries.at(piece.Country), piece)) {
      const Shape seen = Cut(shape, piece.Rule, tables.Cuts).Intersection(clip).Densified(Step);
      const Shape drawn = seen.Transformed([&](Point lonLat) { return projection.ToMap(lonLat); });
      parts[piece.Area].push_back(drawn.MadeValid().Intersection(sheet));
    }
  }
  std::map<std::string, Shape> land;
  for (const auto& [area, shapes] : parts)
    land[area] = Shape::Collection(shapes).Merged(Grid);
  return land;
}

}  // namespace mapmaker
