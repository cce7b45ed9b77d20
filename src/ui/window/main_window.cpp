#include "ui/window/main_window.h"

#include "model/errors.h"
#include "settings/settings_file.h"
#include "text/qt/text_codec.h"
#include "ui/editing/edit_provinces_panel.h"
#include "ui/editing/edit_units_panel.h"
#include "ui/entry/adjustments_panel.h"
#include "ui/entry/orders_panel.h"
#include "ui/entry/power_strip.h"
#include "ui/entry/retreats_panel.h"
#include "ui/entry/season_finished_panel.h"
#include "ui/exchange/exchange_commands.h"
#include "ui/facts/owners_panel.h"
#include "ui/facts/report_panel.h"
#include "ui/help/help_menu.h"
#include "ui/history/history_bar.h"
#include "ui/history/past_banner.h"
#include "ui/history/past_orders.h"
#include "ui/letters/letters_commands.h"
#include "ui/map/map_view.h"
#include "ui/output/export_commands.h"
#include "ui/output/file_dialogs.h"
#include "ui/replay/animation_player.h"
#include "ui/session/attempt.h"
#include "ui/trial/trial_banner.h"
#include "ui/trial/what_if_panel.h"
#include "ui/widgets/controls.h"
#include "ui/widgets/help_request.h"
#include "ui/widgets/icons.h"
#include "ui/widgets/place_text.h"
#include "ui/widgets/plain_text.h"
#include "ui/widgets/scroll_accessibility.h"
#include "ui/window/edit_menu.h"
#include "ui/window/file_menu.h"
#include "ui/window/game_menu.h"
#include "ui/window/map_menu.h"
#include "ui/window/shared_room.h"
#include "ui/window/side_column.h"
#include "ui/window/status_line.h"
#include "ui/window/toolbar.h"
#include "ui/window/unsaved_work.h"
#include "ui/window/window_drops.h"

#include <QCloseEvent>
#include <QFile>
#include <QMenuBar>
#include <QScreen>
#include <QShortcut>
#include <QStatusBar>
#include <QTabWidget>
#include <QVBoxLayout>

#include <array>
#include <utility>
#include <vector>

namespace orb::ui {
namespace {

using session::Editing;

// Pixels.
constexpr int Gap = 12;
constexpr int ColumnWidth = 345;
/// The names under which it is remembered what is drawn on the map; the settings file has a fixed
/// form without a place for these.
const QString ShowOrders = QStringLiteral("map/showOrders");
const QString TintByOwner = QStringLiteral("map/tintByOwner");
const QString UnitLetters = QStringLiteral("map/unitLetters");
/// Whether the outcomes are held against the other rules.
const QString Compare = QStringLiteral("game/compare");
const QString ShowHistory = QStringLiteral("window/showHistory");

}  // namespace

MainWindow::MainWindow(Start start, const Places& places)
    : m_messages(this),
      m_desk(std::move(start), places.program, m_messages, nullptr),
      m_places(places),
      m_memory(places.config) {
  setWindowIcon(programIcon());
  makeScrollAreasAccessible();
  createPanels();
  m_status = new StatusLine(m_desk, this);
  setStatusBar(m_status);
  layOutPanels();
  createMenus();
  m_tools = new Toolbar(*m_fileMenu, *m_editMenu, *m_mapMenu, this);
  addToolBar(m_tools);
  restoreSize();
  m_desk.setShowOrders(m_memory.flag(ShowOrders));
  settings::MapOptions options = m_desk.view().mapOptions;
  options.TintByOwner = m_memory.flag(TintByOwner);
  options.UnitLetters = m_memory.flag(UnitLetters);
  m_desk.setMapOptions(options);
  m_desk.setCompare(m_memory.flag(Compare, true));
  m_mapMenu->showHistory()->setChecked(m_memory.flag(ShowHistory, true));
  m_desk.recallFolder(QFile::encodeName(m_memory.folder()).toStdString());
  m_desk.setRulesMemory([this](const std::string& file) { return m_memory.rules(fullPath(file)); });
  // Measured and, below, drawn directly this once: when the map cannot be drawn at the start, the
  // exception must reach the caller instead of becoming a box over a window that is not there yet.
  m_map->measure(m_desk.view());
  m_view->setZoom(m_memory.zoom());
  m_desk.setDrawing(
      [this](const session::Situation& next, const View& view) { m_map->draw(next, view); });
  using session::Changes;
  m_desk.whenChanged(Changes::Season | Changes::File | Changes::Editing, this,
                     &MainWindow::showGame);
  m_desk.whenChanged(Changes::Rules | Changes::File, this, &MainWindow::rememberRules);
  connect(&m_desk, &Desk::trialChanged, this, &MainWindow::showTrial);
  connect(&m_desk, &Desk::viewChanged, this, &MainWindow::showViewOnly);
  connect(&m_desk, &Desk::noted, this, &MainWindow::showStatus);
  connect(&m_desk, &Desk::changed, this, [this] { setWindowModified(m_desk.isModified()); });
  showGame();
  // The map is drawn once all has its place: at any other size it would be drawn again.
  layout()->activate();
  centralWidget()->layout()->activate();
  m_view->setZoom(m_view->zoom());
  m_map->draw(m_desk.now(), m_desk.view());
}

/// The panels use the desk, and signal to the window when they are hidden: they are deleted first,
/// and disconnected before that.
MainWindow::~MainWindow() {
  for (QObject* child : findChildren<QObject*>())
    child->disconnect(this);
  qDeleteAll(findChildren<QWidget*>(QString(), Qt::FindDirectChildrenOnly));
}

void MainWindow::createPanels() {
  m_map = new MapPicture(m_desk, m_messages);
  m_view = new MapView(m_map);
  m_orders = new OrdersPanel(m_desk);
  m_retreats = new RetreatsPanel(m_desk);
  m_adjustments = new AdjustmentsPanel(m_desk);
  m_seasonFinished = new SeasonFinishedPanel(m_desk);
  m_editUnits = new EditUnitsPanel(m_desk, *m_map);
  m_editProvinces = new EditProvincesPanel(m_desk, *m_map);
  m_report = new ReportPanel(m_desk);
  // The help menu is made after the panels, so it is looked up when help is wanted.
  const auto listenTo = [this]<class Panel>(Panel* panel) {
    connect(panel, &Panel::statusText, this, &MainWindow::showStatus);
    connect(panel, &Panel::helpWanted, this,
            [this](const QString& topic) { m_helpMenu->showTopic(topic); });
  };
  for (OrderEntryPanel* panel : {m_orders, m_retreats, m_adjustments})
    listenTo(panel);
  listenTo(m_editUnits);
  listenTo(m_editProvinces);
  connect(m_map, &MapPicture::hovered, this, &MainWindow::showPlace);
  new QShortcut(Qt::Key_F6, this, [this] { goToArea(1); });
  new QShortcut(Qt::SHIFT | Qt::Key_F6, this, [this] { goToArea(-1); });
  connect(m_map, &MapPicture::clickedWithoutMouse, this, [this] {
    // The keyboard stays on the map, so the line is said elsewhere than in its box.
    for (OrderEntryPanel* panel : {m_orders, m_retreats, m_adjustments}) {
      if (!panel->isHidden()) panel->tellLine();
    }
  });
  connect(m_view, &MapView::zoomChanged, this, &MainWindow::leaveSpareWidth);
  // The units that a selected report line mentions are ringed on the map.
  connect(m_report, &ReportPanel::unitsPicked, m_map, &MapPicture::setMarks);
  connect(m_report, &ReportPanel::helpWanted, this,
          [this](const QString& topic) { m_helpMenu->showTopic(topic); });
  m_whatIf = new WhatIfPanel(m_desk, m_messages);
  connect(m_whatIf, &WhatIfPanel::openChanged, this, &MainWindow::showStagePanel);
  connect(m_whatIf, &WhatIfPanel::helpWanted, this,
          [this](const QString& topic) { m_helpMenu->showTopic(topic); });
  connect(m_report, &ReportPanel::whatIfWanted, m_whatIf, &WhatIfPanel::askAboutReport);
  connect(m_orders, &OrderEntryPanel::whatIfWanted, m_whatIf, &WhatIfPanel::askAboutList);
  m_pastOrders = new PastOrders(m_desk);
  m_player = new AnimationPlayer(m_desk, m_messages, *m_map, this);
  connect(m_player, &AnimationPlayer::changed, this, &MainWindow::showAnimation);
  connect(m_player, &AnimationPlayer::noted, this, &MainWindow::showStatus);
}

void MainWindow::layOutPanels() {
  m_tabs = new QTabWidget;
  m_tabs->setObjectName(QStringLiteral("tabFacts"));
  m_tabs->setAccessibleName(tr("Supply centres and report"));
  m_tabs->setDocumentMode(true);
  m_tabs->addTab(new OwnersPanel(m_desk), tr("Supply &centres"));
  m_tabs->addTab(m_report, tr("Repor&t"));

  m_powers = new PowerStrip(m_desk);
  for (OrderEntryPanel* panel : {m_orders, m_retreats, m_adjustments})
    m_powers->lead(*panel);
  const auto all = stagePanels();
  std::vector<QWidget*> panels(all.begin(), all.end());
  std::erase(panels, m_seasonFinished);
  m_column = new SideColumn(m_powers, m_seasonFinished, panels, m_tabs);

  auto* desk = new QWidget;
  auto* rows = new QVBoxLayout(desk);
  rows->setContentsMargins(Margin, Margin, Margin, Margin);
  rows->setSpacing(Gap);
  rows->addWidget(new TrialBanner(m_desk, this));
  rows->addWidget(new PastBanner(m_desk, this));
  m_history = new HistoryBar(m_desk, this);
  m_sides = new SharedRoom(Qt::Horizontal, SharedRoom::Unit::Pixels, ColumnWidth);
  m_sides->addWidget(m_view);
  m_sides->addWidget(m_column);
  rows->addWidget(m_sides, 1);
  rows->addWidget(m_history);
  rows->addWidget(m_player->bar());
  setCentralWidget(desk);
}

void MainWindow::createMenus() {
  m_exports = new ExportCommands(m_desk, m_messages, this);
  connect(m_exports, &ExportCommands::noted, this, &MainWindow::showStatus);
  m_exchange = new ExchangeCommands(m_desk, m_messages, m_places.config, this);
  connect(m_exchange, &ExchangeCommands::noted, this, &MainWindow::showStatus);
  connect(m_powers, &PowerStrip::powerChosen, m_exchange, &ExchangeCommands::expectPower);
  new WindowDrops(m_desk, *m_exchange, this);
  for (const OrderEntryPanel* panel : {m_orders, m_retreats, m_adjustments}) {
    // Not from within the event that pasted them.
    connect(panel, &OrderEntryPanel::ordersPasted, m_exchange, &ExchangeCommands::readText,
            Qt::QueuedConnection);
  }
  m_fileMenu = new FileMenu(m_desk, m_messages, m_memory, *m_exports, *m_exchange, this);
  connect(m_fileMenu->animateEntry(), &QAction::triggered, m_player,
          &AnimationPlayer::askAndPlayFiles);
  connect(m_fileMenu->animateMoveEntry(), &QAction::triggered, m_player,
          &AnimationPlayer::playSeason);
  m_unsaved = new UnsavedWork(
      m_desk, m_places, [this] { return m_fileMenu->save(); }, this);
  connect(m_unsaved, &UnsavedWork::noted, this, &MainWindow::showStatus);
  m_editMenu = new EditMenu(m_desk, *m_exports, *m_exchange, m_map, this);
  m_letters = new LettersCommands(m_desk, m_messages, this);
  connect(m_letters, &LettersCommands::noted, this, &MainWindow::showStatus);
  m_fileMenu->addComparison(*m_letters);
  m_gameMenu = new GameMenu(m_desk, *m_letters, this);
  m_mapMenu = new MapMenu(m_desk, *m_view, this);
  menuBar()->addMenu(m_fileMenu);
  menuBar()->addMenu(m_editMenu);
  menuBar()->addMenu(m_gameMenu);
  menuBar()->addMenu(m_mapMenu);
  m_helpMenu = new HelpMenu(m_desk, m_messages, this);
  menuBar()->addMenu(m_helpMenu);
  connect(m_exchange, &ExchangeCommands::helpWanted, m_helpMenu, &HelpMenu::showTopicOver);
  connectHistory();
}

void MainWindow::rememberSettings() {
  rememberSize();
  m_memory.setZoom(m_view->zoom());
  m_memory.setFlag(ShowOrders, m_desk.view().showOrders);
  m_memory.setFlag(TintByOwner, m_desk.view().mapOptions.TintByOwner);
  m_memory.setFlag(UnitLetters, m_desk.view().mapOptions.UnitLetters);
  m_memory.setFlag(Compare, m_desk.view().compare);
  m_memory.setFlag(ShowHistory, m_mapMenu->showHistory()->isChecked());
  const View& view = m_desk.view();
  settings::WriteSettingsFile(settings::SettingsFileForWriting(m_places.program, m_places.config),
                              {view.mapOptions, view.viewOnly}, m_desk.game().Countries);
}

bool MainWindow::event(QEvent* event) {
  if (event->type() != HelpRequest::kind()) return QMainWindow::event(event);
  const auto& request = static_cast<const HelpRequest&>(*event);
  m_helpMenu->showTopicOver(request.topic, &request.dialog);
  event->accept();
  return true;
}

void MainWindow::closeEvent(QCloseEvent* event) {
  if (!m_unsaved->mayClose()) return event->ignore();
  // A settings file that cannot be written is reported, but must not keep the window open.
  attempt(m_messages, [this] { rememberSettings(); });
  event->accept();
}

void MainWindow::offerRecovery() {
  m_unsaved->offerRecovery();
}

void MainWindow::keepAll() {
  m_unsaved->keepCopy();
  try {
    rememberSettings();
  } catch (const model::FatalError&) {
    // Nobody is there to be told.
  }
  m_memory.flush();
}

void MainWindow::showGame() {
  const model::GameState& game = m_desk.game();
  setWindowTitle(titleText(text::ToQString(model::Caption(game))));
  // Every way in which a game gets a file leads through here: opening, saving, and the command
  // line.
  if (game.FileName != m_shownFile) {
    m_shownFile = game.FileName;
    if (!m_shownFile.empty()) {
      m_memory.addRecentFile(fullPath(m_shownFile));
      m_memory.setFolder(displayPath(m_desk.folder().string()));
    }
  }
  // Only a real change brings the panel to the front again: it takes the keyboard and begins its
  // line anew.
  if (m_shownPanel != std::pair(game.Stage, m_desk.now().Editing)) showStagePanel();
  showViewOnly();
}

void MainWindow::rememberRules() {
  const std::string& file = m_desk.game().FileName;
  if (!file.empty()) m_memory.setRules(fullPath(file), m_desk.now().Rules);
}

void MainWindow::showStagePanel() {
  m_shownPanel = {m_desk.game().Stage, m_desk.now().Editing};
  const auto& [stage, editing] = *m_shownPanel;
  QWidget* shown = panelFor(stage, editing);
  m_column->showInstead(shown);
  // The report is in front as soon as there is one; owners are edited with the list of owners in
  // view.
  m_showsReport = m_desk.shown().Game.ReportLines.Count() > 0;
  const bool report = m_showsReport && editing != Editing::Provinces;
  m_tabs->setCurrentIndex(report ? 1 : 0);
  chooseTool();
  if (m_desk.past()) return;
  if (shown == m_whatIf) return m_whatIf->startReading();
  if (shown == m_editUnits) return m_editUnits->startEditing();
  if (shown == m_editProvinces) return m_editProvinces->startEditing();
  if (auto* panel = qobject_cast<OrderEntryPanel*>(shown)) return panel->startEntry();
  // Not the button: an Enter too many would drop the report unread.
  m_report->startReading();
}

QWidget* MainWindow::panelFor(model::Stage stage, Editing editing) const {
  if (m_desk.past()) return m_pastOrders->hasLines() ? m_pastOrders : nullptr;
  if (m_whatIf->isOpen()) return m_whatIf;
  // Editing takes the place of the stage, whichever that is.
  if (editing == Editing::Units) return m_editUnits;
  if (editing == Editing::Provinces) return m_editProvinces;
  switch (stage) {
    case model::Stage::Moves:
      return m_orders;
    case model::Stage::Retreats:
      return m_retreats;
    case model::Stage::Adjustments:
      return m_adjustments;
    case model::Stage::Finished:
      return m_seasonFinished;
    default:
      return nullptr;
  }
}

std::array<QWidget*, 8> MainWindow::stagePanels() const {
  return {m_orders,        m_retreats,       m_adjustments, m_editUnits,
          m_editProvinces, m_seasonFinished, m_whatIf,      m_pastOrders};
}

void MainWindow::showStatus(const QString& text) {
  m_status->showText(text);
}

/// A map that is only viewed does nothing.
void MainWindow::chooseTool() {
  MapTool* tool = nullptr;
  // Hidden is asked for, not visible: at the start the window itself is not yet shown.
  const auto consider = [&](auto* panel) {
    if (!panel->isHidden() && !m_desk.view().viewOnly) tool = panel;
  };
  consider(m_orders);
  consider(m_retreats);
  consider(m_adjustments);
  consider(m_editUnits);
  consider(m_editProvinces);
  m_map->setTool(tool);
}

void MainWindow::showPlace(int location) {
  showStatus(placeText(m_desk.shown().Game, location));
}

/// While an animation has the map's place nothing may change the game.
void MainWindow::showAnimation() {
  // The Map and Help menus stay: they change no game.
  const bool playing = m_player->isOn();
  if (playing) m_desk.endTrial();
  const bool ends = !playing && !m_column->isEnabled();
  for (QWidget* control : {static_cast<QWidget*>(m_fileMenu), static_cast<QWidget*>(m_editMenu),
                           static_cast<QWidget*>(m_gameMenu), static_cast<QWidget*>(m_tools),
                           static_cast<QWidget*>(m_column)}) {
    control->setEnabled(!playing);
  }
  setAcceptDrops(!playing);
  showViewOnly();
  leaveSpareWidth();
  // Where the keyboard was before, it could not stay.
  if (ends) enterColumn();
}

}  // namespace orb::ui
