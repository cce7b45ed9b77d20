#pragma once

#include "settings/map_options.h"
#include "ui/session/desk.h"

#include <QMenu>

#include <utility>
#include <vector>

class QActionGroup;

namespace orb::ui {

class MapView;

/// How the map is shown: the four modes, of which one holds, the toggles, and the zoom. None of it
/// changes the game.
class MapMenu : public QMenu {
  Q_OBJECT

 public:
  MapMenu(Desk& desk, MapView& view, QWidget* parent);

  QAction* zoomIn() const { return m_zoomIn; }
  QAction* zoomOut() const { return m_zoomOut; }
  QAction* zoomToFit() const { return m_zoomToFit; }
  QAction* showOrders() const { return m_showOrders; }
  QAction* showHistory() const { return m_showHistory; }

 private:
  /// One of the options that are on or off.
  using Toggle = bool settings::MapOptions::*;

  void addZoomEntries();
  void addMode(const QString& name, const QString& caption, settings::MapMode mode);
  void addToggle(const QString& name, const QString& caption, Toggle toggle);
  void choose(settings::MapMode mode);
  void set(Toggle toggle, bool on);
  /// Puts the check marks where the desk's view has them, also after a mode that could not be
  /// drawn.
  void showState();

  Desk& m_desk;
  MapView& m_view;
  QActionGroup* m_modeGroup;
  QAction* m_viewOnly = nullptr;
  QAction* m_showOrders = nullptr;
  QAction* m_showHistory = nullptr;
  QAction* m_zoomIn = nullptr;
  QAction* m_zoomOut = nullptr;
  QAction* m_zoomToFit = nullptr;
  std::vector<std::pair<QAction*, settings::MapMode>> m_modes;
  std::vector<std::pair<QAction*, Toggle>> m_toggles;
};

}  // namespace orb::ui
