#include "ui/map/picture_painting.h"

#include <cmath>

namespace orb::ui {

QRectF paintFilling(const QWidget& widget, QPixmap& picture, QPainter& painter) {
  const double ratio = widget.devicePixelRatioF();
  const QRectF whole(widget.rect());
  // A difference of a pixel is rounding, and scaling for it would blur every line.
  if (std::abs(picture.width() - static_cast<int>(whole.width() * ratio)) > 1) {
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    painter.drawPixmap(whole, picture, QRectF(picture.rect()));
    return whole;
  }
  picture.setDevicePixelRatio(ratio);
  const QRectF drawn({0, 0}, picture.deviceIndependentSize());
  if (!drawn.contains(whole)) painter.fillRect(whole, Qt::black);
  painter.drawPixmap(0, 0, picture);
  return drawn;
}

}  // namespace orb::ui
