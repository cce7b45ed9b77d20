#include "ui/widgets/help_request.h"

#include <QCoreApplication>
#include <QDialogButtonBox>

#include <utility>

namespace orb::ui {

HelpRequest::HelpRequest(QWidget& from, QString caption)
    : QEvent(kind()), dialog(from), topic(std::move(caption)) {
  setAccepted(false);
}

QEvent::Type HelpRequest::kind() {
  static const auto type = static_cast<QEvent::Type>(QEvent::registerEventType());
  return type;
}

void askForHelp(QWidget& dialog, const QString& topic) {
  HelpRequest request(dialog, topic);
  for (QWidget* at = dialog.parentWidget(); at != nullptr; at = at->parentWidget()) {
    QCoreApplication::sendEvent(at, &request);
    if (request.isAccepted()) return;
  }
}

QDialogButtonBox* addHelpButton(const QDialog& dialog) {
  auto* buttons = dialog.findChild<QDialogButtonBox*>();
  if (buttons != nullptr) buttons->addButton(QDialogButtonBox::Help);
  return buttons;
}

void offerHelp(QDialog& dialog, const QString& topic) {
  const QDialogButtonBox* buttons = addHelpButton(dialog);
  if (buttons == nullptr) return;
  QObject::connect(buttons, &QDialogButtonBox::helpRequested, &dialog,
                   [&dialog, topic] { askForHelp(dialog, topic); });
}

}  // namespace orb::ui
