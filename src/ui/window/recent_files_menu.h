#pragma once

#include "ui/session/desk.h"
#include "ui/window/window_memory.h"

#include <QMenu>

namespace orb::ui {

/// The game files used last, the latest first; choosing one opens it. The list is made
/// anew whenever the menu comes up.
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
