#include "ui/window/application.h"

#include "ui/session/attempt.h"
#include "ui/widgets/message_boxes.h"

#include <QEvent>
#include <QLabel>
#include <QTimer>

#include <exception>
#include <utility>

namespace orb::ui {

bool Application::notify(QObject* receiver, QEvent* event) {
  // Before a label is shown for the first time; a tooltip is a label as well.
  if (event->type() == QEvent::Polish) {
    auto* label = qobject_cast<QLabel*>(receiver);
    if (label != nullptr && label->textFormat() == Qt::AutoText)
      label->setTextFormat(Qt::PlainText);
  }
  try {
    return QApplication::notify(receiver, event);
  } catch (...) {
    report(displayText(sentenceOf(std::current_exception())));
  }
  return true;
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
