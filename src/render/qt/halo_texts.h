#pragma once

#include <QColor>
#include <QFont>
#include <QImage>
#include <QPainterPath>
#include <QPointF>
#include <QString>
#include <QTransform>

#include <string>
#include <unordered_map>

namespace orb::render {

/// A text with a light seam about its letters.
struct HaloText {
  QString Text;
  QFont Font;  ///< its size "in pixels" is in the units of the surface
  QColor Colour;
  double Halo = 0;  ///< the seam's width in the units of the surface
};

/// The seam of a text that begins on a base line at the origin: half of it lies inside the letters.
QPainterPath OutlineOf(const HaloText& text);

/// How a seam is painted.
QPen HaloPen(const HaloText& text);

/// Pictures of texts with their seams. Painting a seam takes many times as long as painting the
/// text, and a map shows the same texts at the same places each time it is drawn.
class HaloTexts {
 public:
  struct Picture {
    QImage Image;
    QPoint Corner;  ///< in pixels of the device
  };

  /// The picture of a text that begins on a base line at a point of the surface; the transform
  /// takes the surface's units to pixels of the device.
  const Picture& PictureOf(const HaloText& text, QPointF base, const QTransform& toDevice);

 private:
  std::unordered_map<std::string, Picture> pictures_;
};

}  // namespace orb::render
