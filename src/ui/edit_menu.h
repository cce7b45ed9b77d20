#pragma once

#include <QMenu>

namespace orb::ui {

class ExportCommands;

/// What goes to the clipboard.
class EditMenu : public QMenu {
  Q_OBJECT

 public:
  /// Ctrl+C copies the map while the map has the keyboard.
  EditMenu(ExportCommands& commands, QWidget* map, QWidget* parent);

  QAction* copyMapEntry() const { return m_copyMap; }

 private:
  QAction* m_copyMap;
};

}  // namespace orb::ui
