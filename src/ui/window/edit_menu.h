#pragma once

#include "ui/session/desk.h"

#include <QMenu>

namespace orb::ui {

class ExchangeCommands;
class ExportCommands;

/// Taking back the last command and doing it again, by their names; and what goes to the clipboard
/// and comes from it: map, report and orders. The entries for orders are enabled only where the
/// stage has orders or takes some.
class EditMenu : public QMenu {
  Q_OBJECT

 public:
  /// Ctrl+C copies the map while the map has the keyboard.
  EditMenu(Desk& desk, ExportCommands& commands, ExchangeCommands& exchange, QWidget* map,
           QWidget* parent);

  /// Entries that the toolbar shows as buttons.
  QAction* copyMapEntry() const { return m_copyMap; }
  QAction* pasteOrdersEntry() const { return m_pasteOrders; }

 private:
  void go(void (Desk::*step)(), QWidget& map);
  void showState();

  Desk& m_desk;
  QAction* m_takeBack;
  QAction* m_doAgain;
  QAction* m_copyMap;
  QAction* m_copyOrders;
  QAction* m_pasteOrders;
};

}  // namespace orb::ui
