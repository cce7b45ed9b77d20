#include "figures.h"

#include "projection.h"

#include <QFontMetricsF>

#include <cmath>

namespace mapmaker {
namespace {

/// The label's line counts for the dot's place below it.
constexpr double DotDrop = 0.6;

Point ToMapPoint(Point fraction) {
  return {fraction.X * MapWidth, fraction.Y * MapHeight};
}

Shape Disc(Point middle, double radius) {
  const Point shifted{middle.X + 1e-6, middle.Y};
  return Shape::LineString({middle, shifted}).Buffer(radius * FigureScale);
}

Shape Box(Point middle, double halfWidth, double halfHeight) {
  return Shape::Rectangle(middle.X - halfWidth, middle.Y - halfHeight, middle.X + halfWidth,
                          middle.Y + halfHeight);
}

/// The box of the ink of a label, or of a centre's label the outline that marks its owner.
Shape LabelBox(const Location& location, const Placement& placement) {
  const QFontMetricsF metrics(LabelFont());
  const QString text = QString::fromStdString(LabelOf(location));
  const Point middle = ToMapPoint(placement.Label);
  const double width = metrics.horizontalAdvance(text);
  if (location.IsSupplyCentre)
    return Box(middle, (width + metrics.horizontalAdvance(' ')) / 2, 0.4 * metrics.height());
  const QRectF ink = metrics.tightBoundingRect(text);
  const double baseline = middle.Y - metrics.height() / 2 + metrics.ascent();
  const double left = middle.X - width / 2;
  return Shape::Rectangle(left + ink.left(), baseline + ink.top(), left + ink.right(),
                          baseline + ink.bottom());
}

/// The room that any unit of a location takes at `middle`.
Shape UnitExtent(const Location& location, Point middle, double scale, bool onTheSea) {
  Shape extent;
  if (location.Type == Kind::Land) extent = Disc(middle, ArmyRadius * scale);
  if (location.Type != Kind::Land || onTheSea) {
    extent = extent.Union(
        Box(middle, FleetHalfWidth * FigureScale * scale, FleetHalfHeight * FigureScale * scale));
  }
  return extent;
}

/// The captions at the top left and the legend at the top right, in pixels of the shown map.
std::vector<Figure> Corners() {
  constexpr double width = MapWidth / FigureScale;
  const auto box = [](double left, double top, double right, double bottom) {
    return Shape::Rectangle(left * FigureScale, top * FigureScale, right * FigureScale,
                            bottom * FigureScale);
  };
  return {{"captions", -1, box(8, 6, 260, 54)}, {"legend", -1, box(width - 60, 4, width, 116)}};
}

}  // namespace

QFont LabelFont() {
  constexpr double pixels = 8.0 * 96 / 72;
  QFont font("Open Sans");
  font.setPixelSize(static_cast<int>(std::lround(pixels * FigureScale)));
  return font;
}

std::string LabelOf(const Location& location) {
  return location.Type == Kind::Coast ? location.Abbreviation.substr(4) : location.Abbreviation;
}

Point DotOf(const Placement& placement) {
  const Point label = ToMapPoint(placement.Label);
  return {label.X, label.Y + DotDrop * QFontMetricsF(LabelFont()).height()};
}

std::vector<bool> OnTheSea(const Coverage& coverage) {
  std::vector<bool> onTheSea(coverage.size());
  for (const Arc& arc : ArcsOf(coverage)) {
    if (arc.First < 0 || arc.Second < 0) continue;
    const auto first = static_cast<std::size_t>(arc.First);
    const auto second = static_cast<std::size_t>(arc.Second);
    if (coverage[second].Type == AreaType::Water) onTheSea[first] = true;
    if (coverage[first].Type == AreaType::Water) onTheSea[second] = true;
  }
  return onTheSea;
}

std::vector<Figure> FiguresOf(const Tables& tables, const Coverage& coverage) {
  const std::vector<bool> onTheSea = OnTheSea(coverage);
  std::vector<Figure> figures = Corners();
  for (std::size_t i = 0; i < tables.Locations.size(); ++i) {
    const Location& location = tables.Locations[i];
    const Placement& placement = tables.Placements[i];
    const int row = static_cast<int>(i);
    figures.push_back({location.Abbreviation + " label", row, LabelBox(location, placement)});
    if (location.IsSupplyCentre)
      figures.push_back({location.Abbreviation + " dot", row, Disc(DotOf(placement), DotRadius)});
    figures.push_back({location.Abbreviation + " unit", row,
                       UnitExtent(location, ToMapPoint(placement.Unit), 1, onTheSea[i])});
    figures.push_back(
        {location.Abbreviation + " dislodged", row,
         UnitExtent(location, ToMapPoint(placement.Label), DislodgedScale, onTheSea[i])});
  }
  return figures;
}

}  // namespace mapmaker
