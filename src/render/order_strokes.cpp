#include "render/order_strokes.h"

#include "render/drawing.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace orb::render {
namespace {

constexpr double OutlineWidth = 0.8;  ///< of filled figures, in screen pixels
constexpr double BarReach = 5 * TwipsPerPixel;

void DrawLines(Surface& surface, const std::vector<Path>& parts) {
  for (const Path& part : parts) {
    for (std::size_t i = 1; i < part.size(); ++i)
      surface.Line(part[i - 1], part[i]);
  }
}

/// Draws all edges before the first core: no edge may lie over the core of a neighbour.
void DrawParts(Surface& surface, const OrderPen& pen, const std::vector<Path>& parts) {
  surface.DrawWidth = pen.Width + 2 * pen.EdgeWidth;
  surface.ForeColour = pen.Edge;
  DrawLines(surface, parts);
  surface.DrawWidth = pen.Width;
  surface.ForeColour = pen.Core;
  DrawLines(surface, parts);
  SetPens(surface);
}

struct Rhythm {
  double Mark, Gap;
};

/// The lengths of marks and gaps. Pen ends are round, which lengthens each mark by the pen's width;
/// a dot consists of nothing but ends.
Rhythm RhythmOf(LineForm form) {
  switch (form) {
    case LineForm::LongDashes:
      return {9 * TwipsPerPixel, 5 * TwipsPerPixel};
    case LineForm::Dashes:
      return {3.5 * TwipsPerPixel, 4.5 * TwipsPerPixel};
    default:
      return {0.1 * TwipsPerPixel, 4.4 * TwipsPerPixel};
  }
}

}  // namespace

void DrawPath(Surface& surface, const OrderPen& pen, const Path& path, LineForm form) {
  if (form == LineForm::Solid) return DrawParts(surface, pen, {path});
  const auto [mark, gap] = RhythmOf(form);
  const double length = LengthOf(path);
  std::vector<Path> parts;
  const int count = static_cast<int>(std::ceil(length / (mark + gap)));
  for (int i = 0; i < count; ++i) {
    const double start = i * (mark + gap);
    parts.push_back(PartOf(path, start, std::min(start + mark, length)));
  }
  DrawParts(surface, pen, parts);
}

void DrawHead(Surface& surface, const OrderPen& pen, Spot tip, bool filled) {
  const Point base = Moved(tip.At, tip.Along, -HeadLength);
  const Point side = Right(tip.Along);
  const std::array<Point, 3> corners = {Moved(base, side, HeadHalf), tip.At,
                                        Moved(base, side, -HeadHalf)};
  if (!filled) return DrawParts(surface, pen, {{corners.begin(), corners.end()}});
  surface.FillColour = pen.Core;
  surface.ForeColour = pen.Edge;
  surface.DrawWidth = OutlineWidth;
  surface.Polygon(corners);
  SetPens(surface);
}

void DrawEndDot(Surface& surface, const OrderPen& pen, Point centre, bool filled) {
  if (!filled) {
    return DrawPath(surface, pen, RingPath(centre, EndDotRadius), LineForm::Solid);
  }
  surface.FillColour = pen.Core;
  surface.ForeColour = pen.Edge;
  surface.DrawWidth = OutlineWidth;
  surface.Circle(centre, EndDotRadius);
  SetPens(surface);
}

void DrawBar(Surface& surface, const OrderPen& pen, Spot spot) {
  const Point side = Right(spot.Along);
  DrawParts(surface, pen, {{Moved(spot.At, side, -BarReach), Moved(spot.At, side, BarReach)}});
}

void DrawCut(Surface& surface, const OrderPen& pen, Spot spot) {
  constexpr double slant = 0.5;
  const Point stroke = Moved(Right(spot.Along), spot.Along, slant);
  std::vector<Path> strokes;
  for (const double shift : {-CutGap / 2, CutGap / 2}) {
    const Point middle = Moved(spot.At, spot.Along, shift);
    strokes.push_back({Moved(middle, stroke, -BarReach), Moved(middle, stroke, BarReach)});
  }
  DrawParts(surface, pen, strokes);
}

void DrawCross(Surface& surface, const OrderPen& pen, Point centre, double reach) {
  DrawParts(surface, pen,
            {{Moved(centre, {-1, -1}, reach), Moved(centre, {1, 1}, reach)},
             {Moved(centre, {-1, 1}, reach), Moved(centre, {1, -1}, reach)}});
}

void DrawPlus(Surface& surface, const OrderPen& pen, Point centre, double reach) {
  DrawParts(surface, pen,
            {{Moved(centre, {-1, 0}, reach), Moved(centre, {1, 0}, reach)},
             {Moved(centre, {0, -1}, reach), Moved(centre, {0, 1}, reach)}});
}

}  // namespace orb::render
