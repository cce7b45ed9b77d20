#pragma once

#include "ui/desk.h"

#include <QMenu>

#include <utility>
#include <vector>

namespace orb::ui {

/// How the map is shown.
class MapMenu : public QMenu {
  Q_OBJECT

 public:
  MapMenu(Desk& desk, QWidget* parent);

 private:
  using Toggle = bool render::MapOptions::*;

  void addMode(const QString& name, const QString& caption, render::MapMode mode);
  void addToggle(const QString& name, const QString& caption, Toggle toggle);
  void choose(render::MapMode mode);
  void set(Toggle toggle, bool on);
  void showState();

  Desk& m_desk;
  QActionGroup* m_modeGroup;
  std::vector<std::pair<QAction*, render::MapMode>> m_modes;
  std::vector<std::pair<QAction*, Toggle>> m_toggles;
};

}  // namespace orb::ui
