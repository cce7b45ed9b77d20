#pragma once

#include "letters/received.h"

#include "ui/exchange/exchange_dialog.h"
#include "ui/exchange/sender_powers.h"
#include "ui/session/desk.h"

#include <QObject>

#include <filesystem>
#include <string>

namespace orb::ui {

/// The longest text of orders that is read, in bytes: many times all mails of a season.
constexpr std::size_t OrdersTextBound = 200'000;

/// The commands that read orders from files and the clipboard and write them there. Errors are
/// shown in a message box, and the lists, files and the clipboard stay as they were.
class ExchangeCommands : public QObject {
  Q_OBJECT

 public:
  /// Dialogs come up over the window. What the user has remembered lies in the directory.
  ExchangeCommands(Desk& desk, model::Messages& messages,
                   const std::filesystem::path& configDirectory, QWidget* window);

  void importOrders();
  void pasteOrders();
  /// The same for a text that came otherwise: dropped, or pasted where one order is expected.
  void readText(const QString& text);
  /// The same as importOrders for this file.
  void importFile(const std::filesystem::path& file);
  void exportOrders();
  void copyOrders();

  /// A pasted text that does not say so has the orders of the power in this row; 0: of none.
  void expectPower(int power) { m_power = power; }

 signals:
  /// Something for the status bar: what was done.
  void noted(const QString& text);

  /// The help topic that a dialog asks for.
  void helpWanted(const QString& topic, QWidget* dialog);

 private:
  /// Shows what was understood of the text, and files what the user leaves ticked.
  /// `source` is where it came from, if no mail says so.
  void preview(ExchangeKind kind, session::IncomingText text, const std::string& source);

  /// Adds what came in to the game's register; where that cannot be written, one message says so.
  void registerReceipt(const letters::Receipt& receipt);

  Desk& m_desk;
  model::Messages& m_messages;
  SenderPowers m_senders;
  QWidget* m_window;
  int m_power = 0;
  std::string m_unregistered;  ///< the game whose register cannot be written, as was told
};

}  // namespace orb::ui
