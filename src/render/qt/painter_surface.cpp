#include "render/qt/painter_surface.h"

#include "colour/qt/colours.h"
#include "render/qt/map_font.h"
#include "text/qt/text_codec.h"

#include <QPaintEngine>
#include <QPolygonF>

#include <array>
#include <numbers>

namespace orb::render {
namespace {

QPointF ToQPoint(Point point) {
  return {point.X, point.Y};
}

/// Degrees as the painter counts them: sixteenths.
int Sixteenths(double radians) {
  return qRound(radians * 16 * 180 / std::numbers::pi);
}

}  // namespace

PainterSurface::PainterSurface(QPainter& painter, const QRectF& target, QSizeF twips,
                               PictureCache& pictures)
    : painter_(painter),
      target_(target),
      outer_(painter.worldTransform()),
      twips_(twips),
      pictures_(pictures),
      font_(MapFont(8, false, false)),
      metrics_(font_) {
  painter_.save();
  painter_.setRenderHints(QPainter::Antialiasing | QPainter::TextAntialiasing |
                          QPainter::SmoothPixmapTransform | QPainter::LosslessImageRendering);
  painter_.translate(target.topLeft());
  painter_.scale(target.width() / twips.width(), target.height() / twips.height());
}

PainterSurface::~PainterSurface() {
  painter_.restore();
}

void PainterSurface::SetFontFamily(const QString& family) {
  font_.setFamilies({family});
  metrics_ = QFontMetricsF(font_);
}

/// Whether the painter fills an upright raster, from which pictures can be copied pixel by pixel.
bool PainterSurface::PaintsPixels(const QTransform& toDevice) const {
  return painter_.paintEngine()->type() == QPaintEngine::Raster &&
         toDevice.type() <= QTransform::TxScale;
}

void PainterSurface::LoadPicture(const std::filesystem::path& file) {
  FillWith(file, nullptr);
}

void PainterSurface::LoadTintedPicture(const std::filesystem::path& file, const Tinting& tinting) {
  FillWith(file, &tinting);
}

void PainterSurface::FillWith(const std::filesystem::path& file, const Tinting* tinting) {
  const auto picture = [&](QSize size) {
    return tinting == nullptr ? pictures_.Scaled(file, size)
                              : pictures_.Tinted(file, size, *tinting);
  };
  // Printers and vector files take the picture as it is. On a screen or image it is drawn pixel by
  // pixel from a copy scaled once and kept, since scaling takes longer than all the rest.
  const QTransform toDevice = painter_.deviceTransform();
  if (!PaintsPixels(toDevice)) {
    painter_.drawImage(QRectF(QPointF(0, 0), twips_), picture(pictures_.Picture(file).size()));
    return;
  }
  const QSize pixels = toDevice.mapRect(QRectF(QPointF(0, 0), twips_)).size().toSize();
  QImage copy = picture(pixels);
  // With the ratio of a dense screen set, one pixel of the copy falls on one of the device.
  copy.setDevicePixelRatio(pixels.width() / target_.width());
  const QTransform inner = painter_.worldTransform();
  painter_.setWorldTransform(outer_);
  painter_.drawImage(target_.topLeft(), copy);
  painter_.setWorldTransform(inner);
}

void PainterSurface::PaintWhite() {
  painter_.fillRect(QRectF(QPointF(0, 0), twips_), paper_);
}

const QFontMetricsF& PainterSurface::UseFont() const {
  // Font metrics are costly to make and asked for with every text, so they are kept until the font
  // changes.
  const int size = qRound(FontSize * TwipsPerPoint);
  if (font_.pixelSize() != size || font_.bold() != FontBold || font_.underline() != FontUnderline) {
    font_.setPixelSize(size);
    font_.setBold(FontBold);
    font_.setUnderline(FontUnderline);
    metrics_ = QFontMetricsF(font_);
  }
  return metrics_;
}

double PainterSurface::TextWidth(std::string_view text) const {
  return UseFont().horizontalAdvance(text::ToQString(text));
}

double PainterSurface::TextHeight(std::string_view /*text*/) const {
  return UseFont().height();
}

void PainterSurface::DrawText(Point corner, std::string_view text) {
  // The painter places texts by their base line, the surface by their upper edge.
  const QPointF base(corner.X, corner.Y + UseFont().ascent());
  const HaloText shown = {text::ToQString(text), font_, colour::ToQColor(ForeColour),
                          HaloWidth * TwipsPerPixel};
  HaloWidth > 0 ? DrawHaloText(shown, base) : DrawPlainText(shown, base);
}

void PainterSurface::DrawPlainText(const HaloText& text, QPointF base) {
  painter_.setFont(text.Font);
  painter_.setPen(text.Colour);
  painter_.drawText(base, text.Text);
}

void PainterSurface::DrawHaloText(const HaloText& text, QPointF base) {
  const QTransform toDevice = painter_.deviceTransform();
  if (!PaintsPixels(toDevice)) {
    painter_.strokePath(OutlineOf(text).translated(base), HaloPen(text));
    return DrawPlainText(text, base);
  }
  const HaloTexts::Picture& picture = pictures_.Texts().PictureOf(text, base, toDevice);
  const QTransform inner = painter_.worldTransform();
  painter_.setWorldTransform({});
  const QTransform pixels = painter_.deviceTransform();
  QImage image = picture.Image;
  image.setDevicePixelRatio(pixels.m11());
  painter_.drawImage(pixels.inverted().map(QPointF(picture.Corner)), image);
  painter_.setWorldTransform(inner);
}

void PainterSurface::SetPenAndBrush() {
  if (DrawWidth > 0) {
    painter_.setPen(QPen(colour::ToQColor(ForeColour), DrawWidth * TwipsPerPixel, Qt::SolidLine,
                         Qt::RoundCap, Qt::MiterJoin));
  } else {
    painter_.setPen(Qt::NoPen);
  }
  painter_.setBrush(FillStyle == Fill::Solid ? QBrush(colour::ToQColor(FillColour)) : QBrush());
}

void PainterSurface::Line(Point from, Point to) {
  SetPenAndBrush();
  painter_.drawLine(ToQPoint(from), ToQPoint(to));
}

void PainterSurface::Box(Point corner, double width, double height) {
  SetPenAndBrush();
  painter_.drawRect(QRectF(ToQPoint(corner), QSizeF(width, height)));
}

void PainterSurface::Circle(Point centre, double radius) {
  SetPenAndBrush();
  painter_.drawEllipse(ToQPoint(centre), radius, radius);
}

void PainterSurface::Arc(Point centre, double radius, double start, double end) {
  SetPenAndBrush();
  const QRectF frame(centre.X - radius, centre.Y - radius, 2 * radius, 2 * radius);
  painter_.drawArc(frame, Sixteenths(start), Sixteenths(end - start));
}

void PainterSurface::Polygon(std::span<const Point> corners) {
  SetPenAndBrush();
  QPolygonF polygon;
  for (const Point& corner : corners)
    polygon << ToQPoint(corner);
  painter_.drawPolygon(polygon);
}

}  // namespace orb::render
