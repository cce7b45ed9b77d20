#include "ui/entry/power_strip.h"
#include "ui/history/history_bar.h"
#include "ui/output/export_commands.h"
#include "ui/replay/animation_player.h"
#include "ui/window/main_window.h"
#include "ui/window/map_menu.h"

#include <QAction>
#include <QTabWidget>

#include <utility>

// What the window shows instead of the game as it is.

namespace orb::ui {

void MainWindow::connectHistory() {
  m_exports->setStory([this] { return m_history->story(); });
  connect(m_history, &HistoryBar::playWanted, m_player, &AnimationPlayer::playGames);
  connect(m_history, &HistoryBar::noted, this, &MainWindow::showStatus);
  connect(m_history, &HistoryBar::shown, this, &MainWindow::leaveSpareWidth);
  connect(m_mapMenu->showHistory(), &QAction::toggled, m_history, &HistoryBar::setWanted);
}

void MainWindow::showTrial() {
  const bool looksBack = m_desk.past().has_value();
  if (looksBack || m_looksBack) {
    m_looksBack = looksBack;
    const bool stepsThrough = m_history->line().hasFocus();
    m_powers->setVisible(!looksBack);
    showStagePanel();
    // The arrow keys go on stepping, over the present stage as well.
    if (looksBack || stepsThrough) m_history->line().setFocus();
    leaveSpareWidth();
    return;
  }
  const bool report = m_desk.shown().Game.ReportLines.Count() > 0;
  if (std::exchange(m_showsReport, report) != report) m_tabs->setCurrentIndex(report ? 1 : 0);
  leaveSpareWidth();
}

}  // namespace orb::ui
