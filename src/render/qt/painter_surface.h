#pragma once

#include "render/qt/halo_texts.h"
#include "render/qt/picture_cache.h"
#include "render/surface.h"

#include <QColor>
#include <QFont>
#include <QFontMetricsF>
#include <QPainter>
#include <QRectF>
#include <QSizeF>
#include <QString>
#include <QTransform>

namespace orb::render {

/// A surface on whatever a painter paints on: image, screen, printer, PDF or SVG. The painter must
/// outlive it and is left as it was found.
class PainterSurface : public Surface {
 public:
  /// Lays a surface of the given size in twips over a rectangle of the painter's coordinates.
  /// Pictures come from the cache.
  PainterSurface(QPainter& painter, const QRectF& target, QSizeF twips, PictureCache& pictures);
  PainterSurface(const PainterSurface&) = delete;
  PainterSurface& operator=(const PainterSurface&) = delete;
  ~PainterSurface() override;

  /// Colour and font in place of white and the map's: for pictures that suit the window's theme.
  void SetPaper(const QColor& paper) { paper_ = paper; }
  void SetFontFamily(const QString& family);

  double ScaleWidth() const override { return twips_.width(); }
  double ScaleHeight() const override { return twips_.height(); }
  void LoadPicture(const std::filesystem::path& file) override;
  void LoadTintedPicture(const std::filesystem::path& file, const Tinting& tinting) override;
  double TextWidth(std::string_view text) const override;
  double TextHeight(std::string_view text) const override;
  void Line(Point from, Point to) override;
  void Box(Point corner, double width, double height) override;
  void Circle(Point centre, double radius) override;
  void Arc(Point centre, double radius, double start, double end) override;
  void Polygon(std::span<const Point> corners) override;

 protected:
  void PaintWhite() override;
  void DrawText(Point corner, std::string_view text) override;

 private:
  bool PaintsPixels(const QTransform& toDevice) const;
  void FillWith(const std::filesystem::path& file, const Tinting* tinting);
  void DrawPlainText(const HaloText& text, QPointF base);
  void DrawHaloText(const HaloText& text, QPointF base);
  void SetPenAndBrush();
  const QFontMetricsF& UseFont() const;

  QPainter& painter_;
  QRectF target_;
  QTransform outer_;
  QSizeF twips_;
  PictureCache& pictures_;
  QColor paper_ = Qt::white;
  mutable QFont font_;
  mutable QFontMetricsF metrics_;
};

}  // namespace orb::render
