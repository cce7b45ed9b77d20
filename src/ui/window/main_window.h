#pragma once

#include "ui/session/desk.h"
#include "ui/session/places.h"
#include "ui/widgets/message_boxes.h"
#include "ui/window/window_memory.h"

#include <QMainWindow>

#include <array>
#include <optional>
#include <string>
#include <utility>

class QTabWidget;
class QToolBar;

namespace orb::ui {

class AnimationPlayer;
class EditMenu;
class EditProvincesPanel;
class EditUnitsPanel;
class ExchangeCommands;
class ExportCommands;
class FileMenu;
class GameMenu;
class HelpMenu;
class LettersCommands;
class HistoryBar;
class MapMenu;
class MapPicture;
class MapView;
class OrderEntryPanel;
class PastOrders;
class PowerStrip;
class ReportPanel;
class SeasonFinishedPanel;
class SharedRoom;
class SideColumn;
class StatusLine;
class UnsavedWork;
class WhatIfPanel;

/// The map at the left, the panels at the right, menus and tools above, the status below.
///
/// The window owns the desk and everything that works on it. It puts the parts together and decides
/// which of them are visible; the parts themselves carry out the commands.
class MainWindow : public QMainWindow {
  Q_OBJECT

 public:
  /// Throws FatalError when the map cannot be drawn.
  MainWindow(Start start, const Places& places);
  MainWindow(const MainWindow&) = delete;
  MainWindow& operator=(const MainWindow&) = delete;
  ~MainWindow() override;

  /// Offers games that were not saved before their windows ended; to be called once it is shown.
  void offerRecovery();

  /// Keeps what can be kept without asking: the program is ended from outside.
  void keepAll();

 protected:
  bool event(QEvent* event) override;
  void closeEvent(QCloseEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;

 private:
  // The window is built once. The menus use the panels' map and player, and the toolbar shows
  // entries of the menus, so they are created one after the other.
  void createPanels();
  void layOutPanels();
  void createMenus();
  void connectHistory();
  // The size and place of the last start, or the preferred size on the first one.
  void restoreSize();
  void rememberSize();
  /// Keeps what the next start shows again. Throws FileError.
  void rememberSettings();

  // Each shows one side of the state, whatever has changed, and may be called at any time.
  void showGame();
  void showViewOnly();
  /// Remembers which rules are in force for the game's file.
  void rememberRules();
  /// How wide the window is, in pixels, when only the map shows.
  int mapOnlyWidth();
  /// What the window has for the map from top to bottom, in pixels.
  int mapHeight() const;
  void showStagePanel();
  QWidget* panelFor(model::Stage stage, session::Editing editing) const;
  std::array<QWidget*, 8> stagePanels() const;
  void showStatus(const QString& text);
  /// Hands the mouse on the map to the panel that is in front.
  void chooseTool();
  void showPlace(int location);
  /// Takes the keyboard so many areas on: the column at the right, the map, the history below it.
  void goToArea(int steps);
  void enterColumn();
  void showAnimation();
  /// The report of what is tried out comes to the front where there was none; while another stage
  /// of the history is looked at, its orders are where the stage's panel was.
  void showTrial();
  /// Keeps the map's side no wider than the fitted map needs.
  void leaveSpareWidth();

  /// Around the map and the panels, in pixels.
  static constexpr int Margin = 10;

  // The desk keeps a reference to the messages, and every widget one to the desk.
  MessageBoxes m_messages;
  Desk m_desk;
  Places m_places;
  WindowMemory m_memory;
  MapPicture* m_map = nullptr;
  MapView* m_view = nullptr;
  /// The panels at the right, hidden while only the map shows.
  SideColumn* m_column = nullptr;
  SharedRoom* m_sides = nullptr;
  PowerStrip* m_powers = nullptr;
  QToolBar* m_tools = nullptr;
  AnimationPlayer* m_player = nullptr;
  // One panel for each stage and for each kind of editing; at most one of them is visible.
  OrderEntryPanel* m_orders = nullptr;
  OrderEntryPanel* m_retreats = nullptr;
  OrderEntryPanel* m_adjustments = nullptr;
  SeasonFinishedPanel* m_seasonFinished = nullptr;
  EditUnitsPanel* m_editUnits = nullptr;
  EditProvincesPanel* m_editProvinces = nullptr;
  /// In the place of any of them while a question about an order is answered.
  WhatIfPanel* m_whatIf = nullptr;
  PastOrders* m_pastOrders = nullptr;
  HistoryBar* m_history = nullptr;
  bool m_looksBack = false;    ///< whether another stage of the history is shown
  bool m_showsReport = false;  ///< whether there was a report when a tab was last put in front
  QTabWidget* m_tabs = nullptr;
  ReportPanel* m_report = nullptr;
  ExportCommands* m_exports = nullptr;
  ExchangeCommands* m_exchange = nullptr;
  LettersCommands* m_letters = nullptr;
  FileMenu* m_fileMenu = nullptr;
  UnsavedWork* m_unsaved = nullptr;
  EditMenu* m_editMenu = nullptr;
  GameMenu* m_gameMenu = nullptr;
  HelpMenu* m_helpMenu = nullptr;
  MapMenu* m_mapMenu = nullptr;
  StatusLine* m_status = nullptr;
  std::string m_shownFile;  ///< the game's file that was put among the recent ones last
  /// What the visible panel is for, so that it is replaced only when that has changed.
  std::optional<std::pair<model::Stage, session::Editing>> m_shownPanel;
  int m_normalWidth = 0;  ///< of the window, while only the map shows
};

}  // namespace orb::ui
