#include "ui/window/application.h"

#include "text/qt/text_codec.h"
#include "ui/session/attempt.h"
#include "ui/widgets/edged_style.h"
#include "ui/widgets/message_boxes.h"

#include <QDialogButtonBox>
#include <QEvent>
#include <QLabel>
#include <QMessageBox>
#include <QPushButton>
#include <QStyle>
#include <QTimer>

#include <exception>
#include <utility>

namespace orb::ui {

Application::Application(int& argc, char** argv) : QApplication(argc, argv) {
  // The other styles are those of desktops, and draw as these want it.
  if (style()->name() == QLatin1String("fusion")) setStyle(new EdgedStyle);
}

bool Application::notify(QObject* receiver, QEvent* event) {
  // Before a label is shown for the first time; a tooltip is a label as well.
  if (event->type() == QEvent::Polish) {
    auto* label = qobject_cast<QLabel*>(receiver);
    if (label != nullptr && label->textFormat() == Qt::AutoText)
      label->setTextFormat(Qt::PlainText);
    dress(*receiver);
  }
  try {
    return QApplication::notify(receiver, event);
  } catch (...) {
    report(displayText(sentenceOf(std::current_exception())));
  }
  return true;
}

/// What Qt and the themes do to their own dialogs otherwise than to the program's.
void Application::dress(QObject& receiver) {
  if (auto* box = qobject_cast<QMessageBox*>(&receiver))
    box->setWindowTitle(text::ToQString(model::ProgramName));
  // Not every button has an icon of its own; either all or none.
  auto* button = qobject_cast<QPushButton*>(&receiver);
  if (button != nullptr && qobject_cast<QDialogButtonBox*>(button->parent()) != nullptr)
    button->setIcon({});
}

/// Not from within the event: it may be one of painting, or the one that is to show the box.
void Application::report(const QString& fault) {
  if (std::exchange(m_reporting, true)) return;
  QTimer::singleShot(0, this, [this, fault] {
    MessageBox(fault, QMessageBox::Critical, activeWindow()).exec();
    m_reporting = false;
  });
}

}  // namespace orb::ui
