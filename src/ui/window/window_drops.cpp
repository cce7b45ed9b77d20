#include "ui/window/window_drops.h"

#include "ui/exchange/exchange_commands.h"
#include "ui/output/file_dialogs.h"

#include <QDropEvent>
#include <QFile>
#include <QFileInfo>
#include <QMimeData>
#include <QTimer>

#include <filesystem>

namespace orb::ui {
namespace {

/// Whether the file is a text or a mail by its name; games have names of their own.
bool isTextFile(const QString& file) {
  static const QStringList kinds{QStringLiteral("txt"), QStringLiteral("eml"),
                                 QStringLiteral("mbox")};
  return kinds.contains(QFileInfo(file).suffix().toLower());
}

/// The text of a drag that is no file.
QString draggedText(const QMimeData& data) {
  return data.hasUrls() ? QString() : data.text().trimmed();
}

}  // namespace

WindowDrops::WindowDrops(Desk& desk, ExchangeCommands& exchange, QWidget* window)
    : QObject(window), m_desk(desk), m_exchange(exchange) {
  window->setAcceptDrops(true);
  window->installEventFilter(this);
}

bool WindowDrops::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() != QEvent::DragEnter && event->type() != QEvent::Drop)
    return QObject::eventFilter(watched, event);
  auto* drop = static_cast<QDropEvent*>(event);
  const bool takes =
      event->type() == QEvent::Drop ? take(*drop->mimeData()) : isWanted(*drop->mimeData());
  // What is dropped stays where it comes from.
  drop->setDropAction(Qt::CopyAction);
  drop->setAccepted(takes);
  return true;
}

bool WindowDrops::isWanted(const QMimeData& data) const {
  const QString file = draggedFile(data);
  const bool orders = file.isEmpty() ? !draggedText(data).isEmpty() : isTextFile(file);
  if (!orders) return !file.isEmpty();
  return session::TakesOrders(m_desk.game()) && !m_desk.view().viewOnly;
}

bool WindowDrops::take(const QMimeData& data) {
  if (!isWanted(data)) return false;
  const QString file = draggedFile(data);
  const std::filesystem::path path = QFile::encodeName(file).toStdString();
  if (!file.isEmpty() && !isTextFile(file)) {
    m_desk.openGame(path, false);
    return true;
  }
  const auto showOrders = [this, file, path, text = draggedText(data)] {
    file.isEmpty() ? m_exchange.readText(text) : m_exchange.importFile(path);
  };
  // The program that it comes from waits until the drop is over, and must not wait for a dialog.
  QTimer::singleShot(0, this, showOrders);
  return true;
}

}  // namespace orb::ui
