#pragma once

#include <QPagedPaintDevice>
#include <QPainter>
#include <QRectF>
#include <QSizeF>
#include <QString>

#include <functional>

namespace orb::ui {

/// What is printed of a game.
struct PrintedGame {
  QString footer;   ///< stands at the foot of each page, with the page's number
  QString report;   ///< lines separated by LF; the font is chosen so that all fit the width
  QSizeF mapShape;  ///< only its proportions count
  std::function<void(QPainter&, const QRectF&)> paintMap;
};

/// Prints one copy: the map on the first page, as wide as it allows, and the report below it and
/// on the pages after. Throws FileError when the device takes no job or no further page, and what
/// the map's painting throws.
void printGame(QPagedPaintDevice& device, const PrintedGame& game);

}  // namespace orb::ui
