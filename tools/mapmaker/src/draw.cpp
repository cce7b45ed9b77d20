#include "draw.h"

#include "projection.h"

#include <QPainter>
#include <QPainterPath>

#include <cmath>
#include <map>

namespace mapmaker {
namespace {

/// Drawn so much larger and then scaled down.
constexpr int Oversampling = 3;

QPainterPath ToPath(const Line& line) {
  QPainterPath path(QPointF(line.front().X, line.front().Y));
  for (std::size_t i = 1; i < line.size(); ++i)
    path.lineTo(line[i].X, line[i].Y);
  return path;
}

QPainterPath ToPath(const Shape& shape) {
  QPainterPath path;
  for (const Line& ring : shape.Rings())
    path.addPath(ToPath(ring));
  return path;
}

void FillShape(QPainter& painter, const Shape& shape, const QColor& colour) {
  for (const Shape& polygon : shape.Polygons())
    painter.fillPath(ToPath(polygon), colour);
}

QPen ToQPen(const Pen& pen) {
  QPen drawn(pen.Colour, pen.Width, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin);
  if (!pen.Dashes.empty()) {
    drawn.setCapStyle(Qt::FlatCap);
    QList<qreal> pattern;
    for (const double dash : pen.Dashes)
      pattern.append(dash / pen.Width);
    drawn.setDashPattern(pattern);
  }
  return drawn;
}

void Stroke(QPainter& painter, const QPainterPath& path, const Pen& pen) {
  if (pen.Width > 0) painter.strokePath(path, ToQPen(pen));
}

Shape AllLand(const Coverage& coverage) {
  std::vector<Shape> land;
  for (const Area& area : coverage) {
    if (IsLand(area)) land.push_back(area.Extent);
  }
  return Shape::Collection(land).Merged();
}

void DrawSea(QPainter& painter, const Coverage& coverage, const Style& style) {
  painter.fillRect(QRectF(0, 0, MapWidth, MapHeight), style.Sea);
  const Shape land = AllLand(coverage).Simplified(0.15);
  for (const ShoreBelt& belt : style.ShoreBelts) {
    const Shape shore = land.Buffer(belt.Distance);
    FillShape(painter, shore, belt.Fill);
    for (const Line& ring : shore.Rings())
      Stroke(painter, ToPath(ring), belt.Edge);
  }
  for (const Area& area : coverage) {
    if (area.Type == AreaType::InlandWater) FillShape(painter, area.Extent, style.InlandWater);
  }
}

/// The country an area is drawn as part of: a power's home, or by itself.
std::string CountryOf(const Area& area) {
  return area.Home.empty() ? area.Name : area.Home;
}

void DrawTint(QPainter& painter, const Shape& country, const LandTint& tint, double rimWidth) {
  FillShape(painter, country, tint.Rim);
  FillShape(painter, country.Simplified(0.15).Buffer(-rimWidth), tint.Fill);
}

void DrawOutOfPlay(QPainter& painter, const Shape& shape, const Style& style) {
  DrawTint(painter, shape, style.OutOfPlay, style.RimWidth);
  const Hatch& hatch = style.OutOfPlayHatch;
  if (hatch.Distance <= 0) return;
  std::vector<Shape> strokes;
  const double step = hatch.Distance * std::sqrt(2.0);
  const int count = static_cast<int>((MapWidth + MapHeight) / step);
  for (int i = 0; i <= count; ++i) {
    const double x = -MapHeight + i * step;
    strokes.push_back(Shape::LineString({{x, MapHeight}, {x + MapHeight, 0}}));
  }
  for (const Line& stroke : Shape::Collection(strokes).Intersection(shape).Lines())
    Stroke(painter, ToPath(stroke), hatch.Stroke);
}

void DrawLand(QPainter& painter, const Coverage& coverage, const Style& style) {
  std::map<std::string, std::vector<Shape>> countries;
  std::map<std::string, std::string> homes;
  std::vector<Shape> outOfPlay;
  for (const Area& area : coverage) {
    if (area.Type == AreaType::Land) {
      countries[CountryOf(area)].push_back(area.Extent);
      homes[CountryOf(area)] = area.Home;
    } else if (area.Type == AreaType::OutOfPlay) {
      outOfPlay.push_back(area.Extent);
    }
  }
  for (const auto& [country, shapes] : countries) {
    DrawTint(painter, Shape::Collection(shapes).Merged(), style.Homes.at(homes[country]),
             style.RimWidth);
  }
  DrawOutOfPlay(painter, Shape::Collection(outOfPlay).Merged(), style);
}

const Pen& PenFor(const Area& first, const Area& second, const Style& style) {
  if (IsLand(first) != IsLand(second)) return style.Coast;
  if (!IsLand(first)) return style.SeaBorder;
  return CountryOf(first) == CountryOf(second) ? style.ProvinceBorder : style.HomeBorder;
}

/// All borders, the finer ones first, so that the strong ones run through.
void DrawBorders(QPainter& painter, const Coverage& coverage, const Style& style) {
  const std::vector<Arc> arcs = ArcsOf(coverage);
  for (const Pen* pen :
       {&style.SeaBorder, &style.ProvinceBorder, &style.HomeBorder, &style.Coast}) {
    for (const Arc& arc : arcs) {
      if (arc.First < 0 || arc.Second < 0) continue;
      const Area& first = coverage[static_cast<std::size_t>(arc.First)];
      const Area& second = coverage[static_cast<std::size_t>(arc.Second)];
      if (&PenFor(first, second, style) == pen) Stroke(painter, ToPath(arc.Course), *pen);
    }
  }
}

/// The banks stop at the coast; the water runs a little on into the sea.
void DrawStraits(QPainter& painter, const Coverage& coverage, const std::vector<Line>& straits,
                 const Style& style) {
  const Shape land = AllLand(coverage);
  QPen bank = ToQPen(style.StraitBank);
  bank.setCapStyle(Qt::FlatCap);
  std::vector<Line> crossings;
  for (const Line& strait : straits) {
    for (Line& crossing : Shape::LineString(strait).Intersection(land).Lines())
      crossings.push_back(std::move(crossing));
  }
  for (const Line& crossing : crossings)
    painter.strokePath(ToPath(crossing), bank);
  for (const Line& crossing : crossings)
    Stroke(painter, ToPath(crossing), style.StraitWater);
}

void DrawNeatline(QPainter& painter, const Pen& pen) {
  const double inset = pen.Width / 2;
  QPainterPath frame;
  frame.addRect(QRectF(inset, inset, MapWidth - pen.Width, MapHeight - pen.Width));
  painter.setRenderHint(QPainter::Antialiasing, false);
  if (pen.Width > 0) {
    painter.strokePath(frame,
                       QPen(pen.Colour, pen.Width, Qt::SolidLine, Qt::FlatCap, Qt::MiterJoin));
  }
}

}  // namespace

QImage DrawMap(const Coverage& coverage, const std::vector<Line>& straits, const Style& style) {
  QImage large(MapWidth * Oversampling, MapHeight * Oversampling, QImage::Format_RGB32);
  QPainter painter(&large);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.scale(Oversampling, Oversampling);

  DrawSea(painter, coverage, style);
  DrawLand(painter, coverage, style);
  DrawBorders(painter, coverage, style);
  DrawStraits(painter, coverage, straits, style);
  DrawNeatline(painter, style.Neatline);
  painter.end();
  return large.scaled(MapWidth, MapHeight, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
}

}  // namespace mapmaker
