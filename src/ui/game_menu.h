#pragma once

#include "ui/desk.h"

#include <QMenu>

namespace orb::ui {

/// The commands on the season.
class GameMenu : public QMenu {
  Q_OBJECT

 public:
  GameMenu(Desk& desk, QWidget* parent);

 private:
  void showState();

  const Desk& m_desk;
  QAction* m_undo;
};

}  // namespace orb::ui
