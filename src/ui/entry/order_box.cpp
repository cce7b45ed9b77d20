#include "ui/entry/order_box.h"

#include <QAction>
#include <QClipboard>
#include <QContextMenuEvent>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QMenu>
#include <QMimeData>

namespace orb::ui {

void OrderBox::keyPressEvent(QKeyEvent* event) {
  if (event->matches(QKeySequence::Paste)) return pasteOrHandOn();
  QLineEdit::keyPressEvent(event);
}

/// Under X11 the middle button pastes what is selected elsewhere.
void OrderBox::mouseReleaseEvent(QMouseEvent* event) {
  const QClipboard& clipboard = *QGuiApplication::clipboard();
  const bool pastes = event->button() == Qt::MiddleButton && clipboard.supportsSelection();
  if (pastes && handOn(clipboard.text(QClipboard::Selection))) return;
  QLineEdit::mouseReleaseEvent(event);
}

void OrderBox::contextMenuEvent(QContextMenuEvent* event) {
  QMenu* menu = createStandardContextMenu();
  menu->setAttribute(Qt::WA_DeleteOnClose);
  for (QAction* entry : menu->actions()) {
    // Known by its caption alone, in Qt's own language.
    if (!entry->text().startsWith(QLineEdit::tr("&Paste"))) continue;
    disconnect(entry, &QAction::triggered, this, nullptr);
    connect(entry, &QAction::triggered, this, &OrderBox::pasteOrHandOn);
  }
  menu->popup(event->globalPos());
}

void OrderBox::dropEvent(QDropEvent* event) {
  if (!handOn(event->mimeData()->text())) return QLineEdit::dropEvent(event);
  // It stays where it comes from.
  event->setDropAction(Qt::CopyAction);
  event->accept();
}

/// Some styles write the example in a disabled box as if something stood in it.
void OrderBox::changeEvent(QEvent* event) {
  QLineEdit::changeEvent(event);
  if (event->type() != QEvent::EnabledChange) return;
  if (!isEnabled()) m_example = placeholderText();
  setPlaceholderText(isEnabled() ? m_example : QString());
}

bool OrderBox::handOn(const QString& text) {
  QString lines = text.trimmed();
  lines.replace(QLatin1Char('\r'), QLatin1Char('\n'));
  if (!lines.contains(QLatin1Char('\n'))) return false;
  emit severalLines(text);
  return true;
}

void OrderBox::pasteOrHandOn() {
  if (!handOn(QGuiApplication::clipboard()->text())) paste();
}

}  // namespace orb::ui
