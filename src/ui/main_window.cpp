#include "ui/main_window.h"

#include "render/qt/text_codec.h"
#include "ui/adjustments_panel.h"
#include "ui/controls.h"
#include "ui/file_dialogs.h"
#include "ui/file_menu.h"
#include "ui/game_menu.h"
#include "ui/help_menu.h"
#include "ui/map_menu.h"
#include "ui/map_picture.h"
#include "ui/orders_panel.h"
#include "ui/report_panel.h"
#include "ui/retreats_panel.h"
#include "ui/season_finished_panel.h"

#include <QHBoxLayout>
#include <QMenuBar>
#include <QScreen>
#include <QStatusBar>
#include <QVBoxLayout>

#include <array>
#include <string_view>
#include <utility>

namespace orb::ui {
namespace {

constexpr int Margin = 10;
constexpr int Gap = 12;
constexpr int ColumnWidth = 345;
constexpr QSize PreferredSize(1280, 800);

}  // namespace

MainWindow::MainWindow(Situation start, std::filesystem::path dataDirectory)
    : m_messages(this), m_desk(std::move(start), std::move(dataDirectory), m_messages, nullptr) {
  createPanels();
  layOutPanels();
  createMenus();
  createStatusBar();
  fitToScreen();
  m_map->draw(m_desk.now());
  m_desk.setDrawing([this](const Situation& situation) { m_map->draw(situation); });
  connect(&m_desk, &Desk::changed, this, &MainWindow::showGame);
  showGame();
}

void MainWindow::createPanels() {
  m_map = new MapPicture(m_desk);
  m_orders = new OrdersPanel(m_desk);
  m_retreats = new RetreatsPanel(m_desk);
  m_adjustments = new AdjustmentsPanel(m_desk);
  m_seasonFinished = new SeasonFinishedPanel(m_desk);
  m_report = new ReportPanel(m_desk);
}

void MainWindow::layOutPanels() {
  auto* column = new QWidget;
  auto* panels = new QVBoxLayout(column);
  panels->setContentsMargins({});
  panels->setSpacing(Gap);
  for (QWidget* panel : {static_cast<QWidget*>(m_orders), static_cast<QWidget*>(m_retreats),
                         static_cast<QWidget*>(m_adjustments)}) {
    panels->addWidget(panel, 2);
  }
  panels->addWidget(m_seasonFinished);
  panels->addWidget(m_report, 3);
  panels->addStretch();
  // As wide as it likes to be; on a small screen it gives way.
  panels->addItem(new QSpacerItem(ColumnWidth, 0, QSizePolicy::Preferred));

  auto* desk = new QWidget;
  auto* sides = new QHBoxLayout(desk);
  sides->setContentsMargins(Margin, Margin, Margin, Margin);
  sides->setSpacing(Gap);
  sides->addWidget(m_map, 1);
  sides->addWidget(column);
  setCentralWidget(desk);
}

void MainWindow::createMenus() {
  menuBar()->addMenu(new FileMenu(m_desk, m_messages, this));
  menuBar()->addMenu(new GameMenu(m_desk, this));
  menuBar()->addMenu(new MapMenu(m_desk, this));
  menuBar()->addMenu(new HelpMenu(this));
}

void MainWindow::createStatusBar() {
  m_fileName = new ElidedLabel;
  m_fileName->setObjectName(QStringLiteral("lblFileName"));
  m_fileName->setTextFormat(Qt::PlainText);
  m_fileName->setContentsMargins(Margin, 0, Margin, 0);
  statusBar()->setSizeGripEnabled(false);
  statusBar()->addWidget(m_fileName, 1);
}

void MainWindow::fitToScreen() {
  const QSize available = screen()->availableSize();
  resize(PreferredSize.boundedTo(available));
  // The window's frame needs room too.
  const bool roomy = available.width() > width() && available.height() > height();
  if (!roomy) setWindowState(Qt::WindowMaximized);
}

void MainWindow::showGame() {
  setWindowTitle(render::ToQString(model::Caption(m_desk.game())));
  m_fileName->setText(displayPath(m_desk.game().FileName));
  statusBar()->setVisible(!m_fileName->text().isEmpty());
  if (m_desk.game().Stage != m_shownStage) showStagePanel();
}

void MainWindow::showStagePanel() {
  m_shownStage = m_desk.game().Stage;
  const std::array<std::pair<std::string_view, OrderEntryPanel*>, 3> entryPanels{
      {{"moves", m_orders}, {"retreats", m_retreats}, {"adjustments", m_adjustments}}};
  m_seasonFinished->setVisible(m_shownStage == "finished");
  for (const auto& [stage, panel] : entryPanels)
    panel->setVisible(stage == m_shownStage);
  for (const auto& [stage, panel] : entryPanels) {
    if (stage == m_shownStage) return panel->startEntry();
  }
  // Not the button: an Enter too many would drop the report unread.
  m_report->startReading();
}

}  // namespace orb::ui
