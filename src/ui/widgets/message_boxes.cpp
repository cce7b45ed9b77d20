#include "ui/widgets/message_boxes.h"

#include "text/qt/text_codec.h"

#include <QPushButton>
#include <QStringDecoder>

namespace orb::ui {
namespace {

QMessageBox::Icon boxIcon(model::Icon icon) {
  switch (icon) {
    case model::Icon::Exclamation:
      return QMessageBox::Warning;
    case model::Icon::Information:
      return QMessageBox::Information;
    case model::Icon::Stop:
      return QMessageBox::Critical;
    default:
      return QMessageBox::NoIcon;
  }
}

}  // namespace

MessageBox::MessageBox(const QString& text, Icon icon, QWidget* parent) : QMessageBox(parent) {
  setTextFormat(Qt::PlainText);
  setText(text);
  setIcon(icon);
}

QString displayText(const std::string& text) {
  QStringDecoder utf8(QStringDecoder::Utf8);
  QString shown = utf8(QByteArrayView(text.data(), static_cast<qsizetype>(text.size())));
  // Hardly any text in Windows-1252 with letters beyond ASCII is UTF-8 as well.
  if (utf8.hasError()) shown = text::ToQString(text);
  return shown.replace(QLatin1Char('\r'), QLatin1Char('\n'));
}

bool MessageBoxes::Warn(const std::string& text) {
  MessageBox box(displayText(text), QMessageBox::Warning, m_parent);
  box.setStandardButtons(QMessageBox::Yes | QMessageBox::No);
  box.setDefaultButton(QMessageBox::Yes);
  box.setEscapeButton(QMessageBox::No);
  return box.exec() == QMessageBox::Yes;
}

model::Answer MessageBoxes::Ask(const std::string& text) {
  MessageBox box(displayText(text), QMessageBox::Question, m_parent);
  box.setObjectName(QStringLiteral("frmDialog"));
  // Of one role, so that they stand in this order on every desktop.
  auto* yes = box.addButton(QObject::tr("&Yes"), QMessageBox::ActionRole);
  auto* no = box.addButton(QObject::tr("&No"), QMessageBox::ActionRole);
  auto* yesToAll = box.addButton(QObject::tr("Yes to &all"), QMessageBox::ActionRole);
  // Every way of closing the box but the two kinds of Yes is a No.
  box.setDefaultButton(yes);
  box.setEscapeButton(no);
  box.exec();
  if (box.clickedButton() == yesToAll) return model::Answer::YesToAll;
  return box.clickedButton() == yes ? model::Answer::Yes : model::Answer::No;
}

void MessageBoxes::Show(const std::string& text, model::Icon icon) {
  MessageBox box(displayText(text), boxIcon(icon), m_parent);
  box.setStandardButtons(QMessageBox::Ok);
  box.exec();
}

}  // namespace orb::ui
