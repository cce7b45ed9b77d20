#pragma once

#include <QPainter>
#include <QPixmap>
#include <QRectF>
#include <QWidget>

namespace orb::ui {

/// Paints a picture of the widget's size in pixels, sharp, or one of another size, scaled. Returns
/// where it came to lie, in the widget's coordinates.
QRectF paintFilling(const QWidget& widget, QPixmap& picture, QPainter& painter);

}  // namespace orb::ui
