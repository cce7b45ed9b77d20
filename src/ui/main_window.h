#pragma once

#include "ui/desk.h"
#include "ui/message_boxes.h"

#include <QMainWindow>

#include <optional>
#include <string>

namespace orb::ui {

class ElidedLabel;
class MapPicture;
class OrderEntryPanel;
class ReportPanel;
class SeasonFinishedPanel;

/// The map at the left, the panels of the stage at the right, the menus above.
class MainWindow : public QMainWindow {
  Q_OBJECT

 public:
  /// Throws FatalError when the map cannot be drawn.
  MainWindow(Situation start, std::filesystem::path dataDirectory);

 private:
  void createPanels();
  void layOutPanels();
  void createMenus();
  void createStatusBar();
  void fitToScreen();

  void showGame();
  void showStagePanel();

  MessageBoxes m_messages;
  Desk m_desk;
  MapPicture* m_map = nullptr;
  OrderEntryPanel* m_orders = nullptr;
  OrderEntryPanel* m_retreats = nullptr;
  OrderEntryPanel* m_adjustments = nullptr;
  SeasonFinishedPanel* m_seasonFinished = nullptr;
  ReportPanel* m_report = nullptr;
  ElidedLabel* m_fileName = nullptr;
  std::optional<std::string> m_shownStage;
};

}  // namespace orb::ui
