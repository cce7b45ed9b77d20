#include "preview.h"

#include "figures.h"
#include "projection.h"

#include <QFontMetricsF>
#include <QPainter>
#include <QPolygonF>

#include <array>

namespace mapmaker {
namespace {

constexpr std::array<QRgb, 7> UnitColours{0xffc8324b, 0xff2f6fd0, 0xff4a4a4a, 0xfff4f1e4,
                                          0xfff2c318, 0xffe0742a, 0xff2e9e57};
constexpr std::array<const char*, 7> Powers{"ENG", "FRA", "GER", "RUS", "TUR", "AUS", "ITA"};

/// The home power's colour; elsewhere all colours in turn.
QColor UnitColour(const Location& location, std::size_t row) {
  for (std::size_t i = 0; i < Powers.size(); ++i) {
    if (location.Home == Powers[i]) return UnitColours[i];
  }
  return UnitColours[row % UnitColours.size()];
}

QPointF OnMap(Point fraction) {
  return {fraction.X * MapWidth, fraction.Y * MapHeight};
}

void DrawLabel(QPainter& painter, const Location& location, const Placement& placement,
               const QColor& owner) {
  const QFontMetricsF metrics(LabelFont());
  const QString text = QString::fromStdString(LabelOf(location));
  const double width = metrics.horizontalAdvance(text);
  const QPointF corner = OnMap(placement.Label) - QPointF(width / 2, metrics.height() / 2);
  painter.setPen(Qt::black);
  painter.drawText(corner + QPointF(0, metrics.ascent()), text);
  if (!location.IsSupplyCentre) return;
  const double blank = metrics.horizontalAdvance(' ');
  painter.setPen(QPen(owner, 2 * FigureScale));
  painter.setBrush(Qt::NoBrush);
  painter.drawRect(QRectF(corner + QPointF(-blank / 2, 0.1 * metrics.height()),
                          QSizeF(width + blank, 0.8 * metrics.height())));
  painter.setPen(Qt::NoPen);
  painter.setBrush(Qt::black);
  const Point dot = DotOf(placement);
  painter.drawEllipse(QPointF(dot.X, dot.Y), DotRadius * FigureScale, DotRadius * FigureScale);
}

void DrawUnit(QPainter& painter, const Location& location, QPointF middle, double scale,
              const QColor& colour) {
  painter.setPen(QPen(Qt::black, 0.8 * FigureScale));
  painter.setBrush(colour);
  const double size = scale * FigureScale;
  if (location.Type == Kind::Land) {
    painter.drawEllipse(middle, ArmyRadius * size, ArmyRadius * size);
    return;
  }
  const double w = FleetHalfWidth * size;
  const double h = FleetHalfHeight * size;
  painter.drawPolygon(QPolygonF({middle + QPointF(-w, h * 0.2), middle + QPointF(-w * 0.2, h * 0.2),
                                 middle + QPointF(-w * 0.2, -h), middle + QPointF(w * 0.5, h * 0.2),
                                 middle + QPointF(w, h * 0.2), middle + QPointF(w * 0.6, h),
                                 middle + QPointF(-w * 0.6, h)}));
}

}  // namespace

QImage DrawPreview(const QImage& map, const Tables& tables, bool withDislodged) {
  QImage preview = map.convertToFormat(QImage::Format_RGB32);
  QPainter painter(&preview);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setFont(LabelFont());
  for (std::size_t i = 0; i < tables.Locations.size(); ++i) {
    const Location& location = tables.Locations[i];
    const Placement& placement = tables.Placements[i];
    const QColor colour = UnitColour(location, i);
    DrawLabel(painter, location, placement, colour);
    DrawUnit(painter, location, OnMap(placement.Unit), 1, colour);
    if (withDislodged) DrawUnit(painter, location, OnMap(placement.Label), DislodgedScale, colour);
  }
  return preview;
}

}  // namespace mapmaker
