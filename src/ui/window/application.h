#pragma once

#include <QApplication>

namespace orb::ui {

/// The program's application. Some things hold in it everywhere, whatever a single widget does:
///
/// No label and no tooltip takes its text for markup, unless it was told to: most texts come from
/// files, and markup can name files to be opened. And no exception ends the program: what comes out
/// of the handling of an event becomes an error box. Every message box is called as the program is,
/// no button of a dialog has an icon, and what is ticked can be seen on dark grounds.
class Application : public QApplication {
  Q_OBJECT

 public:
  Application(int& argc, char** argv);

  bool notify(QObject* receiver, QEvent* event) override;

 private:
  static void dress(QObject& receiver);
  void report(const QString& fault);

  bool m_reporting = false;
};

}  // namespace orb::ui
