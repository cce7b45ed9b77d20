#include "ui/widgets/controls.h"

#include "text/qt/text_codec.h"
#include "ui/widgets/help_request.h"

#include <QAbstractButton>
#include <QPainter>
#include <QStyle>

namespace orb::ui {
namespace {

/// Whether text on it has to be light.
bool isDark(const QColor& background) {
  return background.lightness() < 128;
}

}  // namespace

QPushButton* newButton(const QString& name, const QString& caption) {
  auto* button = new QPushButton(caption);
  button->setObjectName(name);
  // Outside dialogs Qt does not do this by itself.
  button->setAutoDefault(true);
  return button;
}

QDialogButtonBox* newOkCancel(QDialog& dialog, const QString& helpTopic) {
  auto* buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel |
                                       QDialogButtonBox::Help);
  QObject::connect(buttons, &QDialogButtonBox::helpRequested, &dialog,
                   [&dialog, helpTopic] { askForHelp(dialog, helpTopic); });
  QObject::connect(buttons, &QDialogButtonBox::accepted, &dialog, &QDialog::accept);
  QObject::connect(buttons, &QDialogButtonBox::rejected, &dialog, &QDialog::reject);
  return buttons;
}

QLabel* newHeading(const QString& text) {
  auto* heading = new QLabel(text);
  QFont font = heading->font();
  font.setBold(true);
  heading->setFont(font);
  return heading;
}

QAction* newEntry(QMenu& menu, const QString& name, const QString& caption,
                  const QKeySequence& shortcut) {
  QAction* entry = menu.addAction(caption);
  entry->setObjectName(name);
  entry->setShortcut(shortcut);
  return entry;
}

QColor failureColour(const QColor& background) {
  return isDark(background) ? QColor(0xff, 0x8f, 0x80) : QColor(0xb0, 0x1c, 0x14);
}

QColor doubtColour(const QColor& background) {
  return isDark(background) ? QColor(0xf0, 0xb4, 0x3c) : QColor(0x9c, 0x62, 0x00);
}

QColor accentColour(const QColor& background) {
  return isDark(background) ? QColor(0x8a, 0xbf, 0xff) : QColor(0x0b, 0x57, 0xb0);
}

QColor noticeColour(const QColor& background) {
  return isDark(background) ? QColor(0x54, 0x40, 0x10) : QColor(0xff, 0xe9, 0xa8);
}

bool showTexts(QListWidget& box, const std::vector<std::string>& texts) {
  QStringList wanted;
  for (const std::string& text : texts)
    wanted << text::ToQString(text);
  QStringList shown;
  for (int row = 0; row < box.count(); ++row)
    shown << box.item(row)->text();
  // A list that is filled anew loses its selection and its place.
  if (shown == wanted) return false;
  box.clear();
  box.addItems(wanted);
  return true;
}

void ElidedLabel::paintEvent(QPaintEvent* /*event*/) {
  const QString shown = fontMetrics().elidedText(text(), Qt::ElideMiddle, contentsRect().width());
  QPainter painter(this);
  style()->drawItemText(&painter, contentsRect(), static_cast<int>(alignment()), palette(),
                        isEnabled(), shown, foregroundRole());
}

}  // namespace orb::ui
