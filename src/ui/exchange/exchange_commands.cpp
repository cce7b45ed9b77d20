#include "ui/exchange/exchange_commands.h"

#include "model/errors.h"
#include "model/files.h"
#include "orders/exchange/order_files.h"
#include "text/qt/text_codec.h"
#include "ui/output/file_dialogs.h"
#include "ui/session/attempt.h"

#include <QClipboard>
#include <QGuiApplication>

#include <system_error>
#include <utility>

namespace orb::ui {
namespace {

namespace fs = std::filesystem;

void checkLength(std::uintmax_t bytes, std::size_t bound, const std::string& where) {
  if (bytes <= bound) return;
  throw model::FileError(where + " is too long for a text of orders: it has " +
                         std::to_string(bytes) + " bytes, and at most " + std::to_string(bound) +
                         " are read.");
}

/// The text in some bytes. They may be longer than it, if they are a mail.
session::IncomingText incomingText(std::string bytes, const std::string& where) {
  checkLength(bytes.size(), session::IncomingBound, where);
  session::IncomingText incoming = session::ReadIncomingText(std::move(bytes), where);
  checkLength(incoming.Text.size(), OrdersTextBound, where);
  return incoming;
}

/// What a file holds that can be a text of orders.
session::IncomingText readOrdersFile(const fs::path& file) {
  std::error_code error;
  const fs::file_status status = fs::status(file, error);
  // A pipe or a device could keep the window waiting for ever.
  if (fs::exists(status) && !fs::is_regular_file(status)) {
    throw model::FileError(file.string() + " is no ordinary file.");
  }
  const std::uintmax_t size = fs::file_size(file, error);
  if (!error) checkLength(size, session::IncomingBound, file.string());
  // Its length is looked at once more: it may have grown, or may not have been known.
  return incomingText(model::ReadFile(file), file.string());
}

/// "Anna <anna@example.org>: orders", of all mails.
std::string senders(const std::vector<session::MailHead>& mails) {
  std::string text;
  for (const session::MailHead& mail : mails) {
    text.append(text.empty() ? "" : "; ").append(mail.Sender);
    if (!mail.Subject.empty()) text.append(": ").append(mail.Subject);
  }
  return text;
}

QString countedOrders(int count) {
  return count == 1 ? QObject::tr("1 order") : QObject::tr("%1 orders").arg(count);
}

}  // namespace

ExchangeCommands::ExchangeCommands(Desk& desk, model::Messages& messages,
                                   const fs::path& configDirectory, QWidget* window)
    : QObject(window),
      m_desk(desk),
      m_messages(messages),
      m_senders(configDirectory),
      m_window(window) {}

void ExchangeCommands::importOrders() {
  const auto file = askOrdersToImport(m_window, m_desk);
  if (file) importFile(*file);
}

void ExchangeCommands::importFile(const fs::path& file) {
  attempt(m_messages, [&] { preview(ExchangeKind::Import, readOrdersFile(file), file.string()); });
}

void ExchangeCommands::pasteOrders() {
  attempt(m_messages, [this] {
    std::string text = QGuiApplication::clipboard()->text().toStdString();
    // A clipboard with a picture has an empty text.
    if (text.find_first_not_of(" \t\r\n") == std::string::npos) {
      throw model::FatalError("There is no text on the clipboard.");
    }
    preview(ExchangeKind::Paste, incomingText(std::move(text), "The text on the clipboard"),
            "the clipboard");
  });
}

void ExchangeCommands::readText(const QString& text) {
  attempt(m_messages, [&] {
    preview(ExchangeKind::Paste, incomingText(text.toStdString(), "The text"), "pasted or dropped");
  });
}

void ExchangeCommands::preview(ExchangeKind kind, session::IncomingText text,
                               const std::string& source) {
  const std::string from = text.Mails.empty() ? source : senders(text.Mails);
  const std::string whole = text.Text;
  ExchangeDialog dialog(m_desk.game(), kind, std::move(text),
                        exchange::ReadTextRepairs(m_desk.dataDirectory()), m_senders, m_window);
  dialog.proposePower(m_power);
  connect(&dialog, &ExchangeDialog::helpWanted, this,
          [&](const QString& topic) { emit helpWanted(topic, &dialog); });
  if (dialog.exec() != QDialog::Accepted) return;
  letters::Receipt receipt = letters::ReceiptOf(m_desk.game(), dialog.lines(), dialog.orders());
  receipt.Power = dialog.power();
  receipt.Source = from;
  receipt.Text = whole;
  registerReceipt(receipt);
  const int filed = m_desk.fileOrders(
      dialog.orders(), kind == ExchangeKind::Paste ? tr("Paste Orders") : tr("Import Orders"));
  if (filed > 0) emit noted(tr("%1 filed.").arg(countedOrders(filed)));
}

void ExchangeCommands::registerReceipt(const letters::Receipt& receipt) {
  const std::string& game = m_desk.game().FileName;
  // Beside no file there is no place for it.
  if (game.empty()) return;
  try {
    letters::Register(game, receipt);
  } catch (const model::FileError& error) {
    if (std::exchange(m_unregistered, game) == game) return;
    m_messages.Show(std::string("Received orders are not registered. ").append(error.what()),
                    model::Icon::Exclamation);
  }
}

void ExchangeCommands::exportOrders() {
  const auto file =
      askWhereToExport(m_window, ExportKind::Orders, m_desk, m_desk.game(), m_messages);
  if (!file) return;
  attempt(m_messages, [&] {
    model::ReplaceFile(*file, exchange::OrdersText(m_desk.game()));
    emit noted(tr("The orders are in %1.").arg(displayPath(file->string())));
  });
}

void ExchangeCommands::copyOrders() {
  QGuiApplication::clipboard()->setText(text::ToQString(exchange::OrdersText(m_desk.game())));
  emit noted(tr("The orders are on the clipboard."));
}

}  // namespace orb::ui
