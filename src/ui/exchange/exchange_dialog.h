#pragma once

#include "session/incoming_text.h"
#include "ui/exchange/exchange_model.h"
#include "ui/exchange/sender_powers.h"
#include "ui/widgets/controls.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDialog>

#include <string>
#include <vector>

namespace orb::ui {

class ExchangeSummary;
class ExchangeTable;

enum class ExchangeKind {
  Import,  ///< a file with orders of any powers
  Paste,   ///< a text with orders of one power, which is chosen
};

/// A text of orders before it is filed, line by line: what was written, what was understood, what
/// is unclear or doubtful. Everything can be corrected here; nothing is filed here.
class ExchangeDialog : public QDialog {
  Q_OBJECT

 public:
  /// The game must outlive the dialog.
  /// `senders`: whose powers are offered and remembered.
  ExchangeDialog(const model::GameState& game, ExchangeKind kind, session::IncomingText text,
                 std::vector<exchange::TextRepair> repairs, SenderPowers& senders, QWidget* parent);

  /// The orders to file.
  std::vector<exchange::ReadLine> orders() const { return m_model.takenLines(); }

  /// All lines of the text, and the power that they were read for; empty: those of all.
  std::vector<exchange::ReadLine> lines() const { return m_model.lines(); }
  const std::string& power() const { return m_model.power(); }

  /// The power in this row is chosen where the text does not say whose orders it has; 0: none.
  void proposePower(int power);

  /// Closes the dialog only when there is something to file.
  void accept() override;

 signals:
  /// The caption of the help topic that is wanted.
  void helpWanted(const QString& topic);

 private:
  QLayout* newPowerRow(const model::GameState& game, const std::vector<session::MailHead>& mails);
  void offerSender(const std::vector<session::MailHead>& mails);
  QLayout* newButtonRow();
  void wantHelp();
  void choosePower();
  // What the labels say follows every change of the model and of the current line.
  void showSheet();
  void showNumbers();
  bool isPowerChosen() const;
  QString resultText() const;
  void showReason();

  const model::GameState& m_game;
  std::string m_text;
  ExchangeModel m_model;
  ExchangeTable* m_table;
  QComboBox* m_power = nullptr;  ///< only when pasting
  SenderPowers& m_senders;
  QString m_sender;                 ///< the address that all the mails come from, or empty
  QCheckBox* m_remember = nullptr;  ///< only where there is one
  ExchangeSummary* m_summary;
  QLabel* m_sheet;  ///< shown where the text is of another game's or season's order sheet
  QCheckBox* m_noOrders;
  QLabel* m_reason;
  QLabel* m_result;
  QPushButton* m_ok;
};

}  // namespace orb::ui
