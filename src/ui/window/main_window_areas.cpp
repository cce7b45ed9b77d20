#include "ui/entry/order_entry_panel.h"
#include "ui/history/history_bar.h"
#include "ui/map/map_picture.h"
#include "ui/window/main_window.h"
#include "ui/window/side_column.h"

#include <QApplication>

#include <algorithm>
#include <initializer_list>
#include <vector>

// The ways of the keyboard over the whole window; the Tab key goes from control to control.

namespace orb::ui {
namespace {

/// What the Tab key would come to first in the area; null for nothing.
QWidget* firstStop(QWidget& area) {
  for (QWidget* at = area.nextInFocusChain(); at != &area; at = at->nextInFocusChain()) {
    const bool takesKeys = (at->focusPolicy() & Qt::TabFocus) != 0 && at->isEnabled();
    if (takesKeys && at->isVisible() && area.isAncestorOf(at)) return at;
  }
  return nullptr;
}

}  // namespace

void MainWindow::goToArea(int steps) {
  std::vector<QWidget*> areas;
  for (QWidget* area : std::initializer_list<QWidget*>{m_column, m_map, m_history}) {
    if (area->isVisible()) areas.push_back(area);
  }
  const QWidget* focus = QApplication::focusWidget();
  const auto here = std::ranges::find_if(areas, [focus](const QWidget* area) {
    return focus != nullptr && (area == focus || area->isAncestorOf(focus));
  });
  const auto count = static_cast<int>(areas.size());
  // From anywhere else, such as the toolbar, to the map.
  const int now = here == areas.end() ? 0 : static_cast<int>(here - areas.begin());
  QWidget* area = areas[static_cast<std::size_t>((now + steps + count) % count)];
  if (area == m_column) return enterColumn();
  QWidget* stop = area == m_map ? area : firstStop(*area);
  if (stop != nullptr) stop->setFocus(Qt::TabFocusReason);
}

void MainWindow::enterColumn() {
  // Orders are written in the box, below the list.
  for (OrderEntryPanel* panel : {m_orders, m_retreats, m_adjustments})
    if (panel->isVisible()) return panel->focusText();
  QWidget* stop = firstStop(*m_column);
  if (stop != nullptr) stop->setFocus(Qt::TabFocusReason);
}

}  // namespace orb::ui
