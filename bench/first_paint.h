#pragma once

#include <QApplication>
#include <QEvent>
#include <QFile>
#include <QTimer>
#include <QWidget>

#include <cstdio>

namespace orb {

/// Ends the program as soon as a widget has been painted for the first time, and prints the memory
/// that the process holds then, in kB.
class EndAfterFirstPaint : public QObject {
 public:
  explicit EndAfterFirstPaint(QWidget& widget) { widget.installEventFilter(this); }

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override {
    // Queued, so that the picture has gone to the screen.
    if (event->type() == QEvent::Paint) QTimer::singleShot(0, this, &EndAfterFirstPaint::end);
    return QObject::eventFilter(watched, event);
  }

 private:
  static void end() {
    QFile status(QStringLiteral("/proc/self/status"));
    if (status.open(QIODevice::ReadOnly)) {
      for (const QByteArray& line : status.readAll().split('\n')) {
        if (line.startsWith("VmRSS:")) std::puts(line.mid(6).trimmed().constData());
      }
    }
    // Not quit(), which would close the window and so write its settings.
    QApplication::exit();
  }
};

}  // namespace orb
