#pragma once

#include <QPageLayout>
#include <QPagedPaintDevice>
#include <QPainter>
#include <QRectF>
#include <QSizeF>
#include <QString>

#include <functional>
#include <vector>

namespace orb::ui {

/// What is printed of a game.
struct PrintedGame {
  QString footer;   ///< stands at the foot of each page, with the page's number
  QString report;   ///< lines separated by LF
  QSizeF mapShape;  ///< only its proportions count
  std::vector<std::function<void(QPainter&, const QRectF&)>> maps;  ///< one at least
};

/// The layout, upright or across, on which the maps come out larger without more pages.
QPageLayout bestLayout(QPageLayout layout, const PrintedGame& game);

/// Prints one copy: the maps on the first page, as large as it allows, and the report below them
/// and on the pages after. Letters are at least 7 points high, and no row of the report is torn in
/// two. Throws FileError when the device takes no job or no further page, and what
/// the map's painting throws.
void printGame(QPagedPaintDevice& device, const PrintedGame& game);

}  // namespace orb::ui
