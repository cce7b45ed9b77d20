#include "ui/entry/order_box.h"

#include <QAbstractItemView>
#include <QAction>
#include <QClipboard>
#include <QCompleter>
#include <QContextMenuEvent>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QMenu>
#include <QMimeData>

namespace orb::ui {

bool OrderBox::event(QEvent* event) {
  // Keys that otherwise lead out of the box.
  if (event->type() == QEvent::ShortcutOverride && completionsAreShown()) {
    const int key = static_cast<QKeyEvent*>(event)->key();
    if (key == Qt::Key_Up || key == Qt::Key_Escape) {
      event->accept();
      return true;
    }
  }
  // Here, since the Tab key otherwise never gets to be a key of the box.
  if (event->type() == QEvent::KeyPress && completionsAreShown()) {
    auto& key = *static_cast<QKeyEvent*>(event);
    if (key.key() == Qt::Key_Escape) {
      m_completions->popup()->hide();
      return true;
    }
    const bool enter = key.key() == Qt::Key_Return || key.key() == Qt::Key_Enter;
    if (enter || key.key() == Qt::Key_Tab) {
      if (!takeCompletion(enter)) QLineEdit::event(event);
      // Else what was filed would come back as the completion that is current.
      event->accept();
      return true;
    }
  }
  return QLineEdit::event(event);
}

void OrderBox::setCompletions(QCompleter* completions) {
  m_completions = completions;
  m_completions->setWidget(this);
  connect(m_completions, qOverload<const QString&>(&QCompleter::activated), this,
          [this](const QString& line) {
            setText(line);
            emit textEdited(line);
          });
}

bool OrderBox::completionsAreShown() const {
  return m_completions != nullptr && m_completions->popup()->isVisible();
}

/// Tab takes the chosen completion or the first one. Enter takes one that is chosen, and files it
/// where it is a whole order; else it files what is in the box.
bool OrderBox::takeCompletion(bool byEnter) {
  QAbstractItemView& popup = *m_completions->popup();
  const QModelIndexList chosen = popup.selectionModel()->selectedIndexes();
  const QModelIndex first = byEnter ? QModelIndex() : popup.model()->index(0, 0);
  const QString text = (chosen.isEmpty() ? first : chosen.front()).data().toString();
  popup.hide();
  if (text.isEmpty()) return false;
  setText(text);
  if (byEnter && !text.endsWith(QLatin1Char(' '))) return false;
  emit textEdited(text);
  return true;
}

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
