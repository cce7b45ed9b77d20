#pragma once

#include "ui/session/desk.h"
#include "ui/window/window_memory.h"

#include <QMenu>

namespace orb::ui {

class ExchangeCommands;
class ExportCommands;
class LettersCommands;

/// The commands on game files: making, opening and saving them, exchanging orders, and all that is
/// exported, printed and animated. It asks for the files; the desk and the commands do the rest.
class FileMenu : public QMenu {
  Q_OBJECT

 public:
  /// Dialogs come up over the window; Exit closes it.
  FileMenu(Desk& desk, model::Messages& messages, WindowMemory& memory, ExportCommands& exports,
           ExchangeCommands& exchange, QWidget* window);

  /// Entries that the toolbar shows as buttons, and those of the player, which the window connects.
  QAction* openEntry() const { return m_open; }
  QAction* saveEntry() const { return m_save; }
  QAction* importOrdersEntry() const { return m_importOrders; }
  QAction* exportTextEntry() const { return m_exportText; }
  QAction* printEntry() const { return m_print; }
  QAction* animateEntry() const { return m_animate; }
  QAction* animateMoveEntry() const { return m_animateMove; }

  /// Saves the game, and asks where when it has no file yet or may not be written to its own.
  /// False: it was not saved.
  bool save();

  /// Adds the entry that compares the game with another one, behind those of files.
  void addComparison(LettersCommands& letters);

 private:
  // The groups of entries between the separators.
  void addExchange(ExchangeCommands& exchange);
  void addExports(ExportCommands& exports);
  void open();
  bool saveAs();
  /// Asks first where somebody else has changed the game's file.
  bool saveTo(const std::filesystem::path& file);
  void showState();

  Desk& m_desk;
  model::Messages& m_messages;
  QWidget* m_window;
  QAction* m_open;
  QAction* m_save;
  QAction* m_importOrders;
  QAction* m_exportOrders;
  QAction* m_exportText;
  QAction* m_orderSheets;
  QAction* m_print;
  QAction* m_animate;
  QAction* m_animateMove;
};

}  // namespace orb::ui
