#pragma once

#include <QPainter>
#include <QPixmap>
#include <QRectF>
#include <QWidget>

namespace orb::ui {

/// Paints a picture over a whole widget. One that has the widget's size in pixels of the screen
/// comes out sharp; any other one is scaled. Returns where the picture lies, in the widget's
/// coordinates.
QRectF paintFilling(const QWidget& widget, QPixmap& picture, QPainter& painter);

}  // namespace orb::ui
