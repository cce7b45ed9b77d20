#pragma once

#include "ui/session/desk.h"
#include "ui/window/window_memory.h"

#include <QMenu>

namespace orb::ui {

/// The game files used last; choosing one opens it.
class RecentFilesMenu : public QMenu {
  Q_OBJECT

 public:
  RecentFilesMenu(Desk& desk, WindowMemory& memory, QWidget* parent);

 private:
  void fill();

  Desk& m_desk;
  WindowMemory& m_memory;
};

}  // namespace orb::ui
