#pragma once

#include "ui/session/desk.h"
#include "ui/window/window_memory.h"

#include <QMenu>

namespace orb::ui {

class ExchangeCommands;
class ExportCommands;

/// The commands on game files.
class FileMenu : public QMenu {
  Q_OBJECT

 public:
  /// Dialogs come up over the window; Exit closes it.
  FileMenu(Desk& desk, model::Messages& messages, WindowMemory& memory, ExportCommands& exports,
           ExchangeCommands& exchange, QWidget* window);

  QAction* openEntry() const { return m_open; }
  QAction* saveEntry() const { return m_save; }
  QAction* importOrdersEntry() const { return m_importOrders; }
  QAction* exportTextEntry() const { return m_exportText; }
  QAction* printEntry() const { return m_print; }
  QAction* animateEntry() const { return m_animate; }
  QAction* animateMoveEntry() const { return m_animateMove; }

 private:
  void addExchange(ExchangeCommands& exchange);
  void addExports(ExportCommands& exports);
  void open();
  void save();
  void saveAs();
  void showState();

  Desk& m_desk;
  model::Messages& m_messages;
  QWidget* m_window;
  QAction* m_open;
  QAction* m_save;
  QAction* m_importOrders;
  QAction* m_exportOrders;
  QAction* m_exportText;
  QAction* m_print;
  QAction* m_animate;
  QAction* m_animateMove;
};

}  // namespace orb::ui
