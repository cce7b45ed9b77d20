#pragma once

#include "ui/session/desk.h"
#include "ui/window/window_memory.h"

#include <QMenu>

namespace orb::ui {

/// The game files used last, the latest first; choosing one opens it, or offers to take it off the
/// list where it is gone. The list is made anew whenever the menu comes up.
class RecentFilesMenu : public QMenu {
  Q_OBJECT

 public:
  /// Questions come up over the window.
  RecentFilesMenu(Desk& desk, WindowMemory& memory, QWidget* window, QWidget* parent);

 private:
  void fill();
  void open(const QString& file);

  Desk& m_desk;
  WindowMemory& m_memory;
  QWidget* m_window;
};

}  // namespace orb::ui
