#include "ui/history/history_bar.h"
#include "ui/map/map_view.h"
#include "ui/replay/animation_player.h"
#include "ui/window/game_menu.h"
#include "ui/window/main_window.h"
#include "ui/window/shared_room.h"
#include "ui/window/side_column.h"

#include <QLayout>
#include <QScreen>

#include <algorithm>

// How large the window is, and how its width is shared between the map and the panels.

namespace orb::ui {
namespace {

constexpr QSize PreferredSize(1280, 800);

}  // namespace

void MainWindow::restoreSize() {
  m_sides->setWish(m_memory.wish(WindowMemory::ColumnWidth, m_sides->wish()));
  SharedRoom& shares = m_column->shares();
  shares.setWish(m_memory.wish(WindowMemory::FactsShare, shares.wish()));
  // Qt itself moves a window back that would open on a screen that is gone.
  if (restoreGeometry(m_memory.geometry())) return;
  const QSize available = screen()->availableSize();
  // The window's frame needs room too, also when it is no longer maximized.
  // Of its width little can go: a window that grows to its least width while it is shown is not
  // maximized any more.
  const QSize roomy(qRound(available.width() * 0.97), qRound(available.height() * 0.9));
  resize(PreferredSize.boundedTo(roomy));
  if (size() != PreferredSize) setWindowState(Qt::WindowMaximized);
}

/// What is remembered is the window with its panels.
void MainWindow::rememberSize() {
  const bool narrowed = m_column->isHidden() && !isMaximized() && !isFullScreen();
  if (narrowed) resize(m_normalWidth, height());
  // Its state, maximized or not, is part of it.
  m_memory.setGeometry(saveGeometry());
  m_memory.setWish(WindowMemory::ColumnWidth, m_sides->wish());
  m_memory.setWish(WindowMemory::FactsShare, m_column->shares().wish());
}

void MainWindow::resizeEvent(QResizeEvent* event) {
  QMainWindow::resizeEvent(event);
  leaveSpareWidth();
}

/// Only the map shows in view-only mode, and nothing that belongs to playing.
void MainWindow::showViewOnly() {
  const bool viewOnly = m_desk.view().viewOnly;
  m_history->setRoom(!viewOnly && !m_player->isOn());
  m_gameMenu->setEnabled(!viewOnly && !m_player->isOn());
  if (m_column->isHidden() == viewOnly) return;
  const bool sizeIsFree = !isMaximized() && !isFullScreen();
  // A maximized window keeps its size, and the width that it goes back to is the one before it was
  // maximized.
  if (viewOnly) m_normalWidth = sizeIsFree ? width() : normalGeometry().width();
  m_column->setVisible(!viewOnly);
  chooseTool();
  if (sizeIsFree) resize(viewOnly ? mapOnlyWidth() : m_normalWidth, height());
  leaveSpareWidth();
}

int MainWindow::mapOnlyWidth() {
  // At the start nothing has its size yet.
  layout()->activate();
  const int wanted = m_view->fittingWidth(mapHeight()) + 2 * Margin;
  return std::min(wanted, screen()->availableSize().width());
}

int MainWindow::mapHeight() const {
  const QLayout& rows = *centralWidget()->layout();
  int height = centralWidget()->height() - 2 * Margin;
  // What stands above and below the map comes and goes.
  for (int i = 0; i < rows.count(); ++i) {
    const QWidget* row = rows.itemAt(i)->widget();
    if (row != m_sides && !row->isHidden()) height -= row->sizeHint().height() + rows.spacing();
  }
  return height;
}

/// What the fitted map cannot use goes to the column.
void MainWindow::leaveSpareWidth() {
  const bool fitted = !m_view->zoom() && !m_column->isHidden();
  // An enlarged map takes all there is, and so does one alone in the window.
  m_view->setMaximumWidth(
      fitted ? std::max(m_view->minimumSizeHint().width(), m_view->fittingWidth(mapHeight()))
             : QWIDGETSIZE_MAX);
}

}  // namespace orb::ui
