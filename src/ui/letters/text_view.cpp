#include "ui/letters/text_view.h"

#include "ui/widgets/fixed_font.h"
#include "ui/widgets/help_request.h"

#include <QPushButton>

namespace orb::ui {

QPlainTextEdit* newTextView(const QString& name, const QString& accessibleName) {
  auto* view = new QPlainTextEdit;
  view->setObjectName(name);
  view->setAccessibleName(accessibleName);
  view->setReadOnly(true);
  view->setTabChangesFocus(true);
  view->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
  view->setFont(fixedFont());
  return view;
}

QDialogButtonBox* newCloseButtons(QDialog& dialog, const QString& helpTopic) {
  auto* buttons = new QDialogButtonBox(QDialogButtonBox::Close | QDialogButtonBox::Help);
  QObject::connect(buttons, &QDialogButtonBox::helpRequested, &dialog,
                   [&dialog, helpTopic] { askForHelp(dialog, helpTopic); });
  QObject::connect(buttons, &QDialogButtonBox::rejected, &dialog, &QDialog::reject);
  return buttons;
}

}  // namespace orb::ui
