// Usage: save_in_window save|saveas|bitmap|text|orders GAME [FILE]
// Opens the game in the real window, enters an order and does one thing that writes, by the menus
// and dialogs. What the window says goes to standard error; the status is 1 if that was a refusal.

#include "support/directories.h"
#include "support/scripted_messages.h"
#include "ui/output/export_commands.h"
#include "ui/window/application.h"
#include "ui/window/main_window.h"

#include <QAbstractButton>
#include <QAction>
#include <QFileDialog>
#include <QLineEdit>
#include <QMessageBox>
#include <QTimer>

#include <cstdlib>
#include <filesystem>
#include <iostream>
#include <map>
#include <string>

namespace {

using namespace orb;

const std::map<std::string, const char*> Entries{{"save", "mnuFileSave"},
                                                 {"saveas", "mnuFileSaveAs"},
                                                 {"bitmap", "mnuFileExportBMP"},
                                                 {"text", "mnuFileExportText"},
                                                 {"orders", "mnuFileExportOrders"}};

/// Answers the dialogs: the file is this, and may be replaced. What is said is printed.
class Answers {
 public:
  explicit Answers(const char* file) : file_(QString::fromLocal8Bit(file)) {
    QObject::connect(&timer_, &QTimer::timeout, &timer_, [this] { Answer(); });
    timer_.start(1);
  }

  bool WasRefused() const { return refused_; }

 private:
  void Answer() {
    QWidget* dialog = QApplication::activeModalWidget();
    if (auto* files = qobject_cast<QFileDialog*>(dialog)) {
      if (chosen_) return files->reject();
      chosen_ = true;
      files->findChild<QLineEdit*>()->setText(file_);
      // The box that asks about the file is an event of its own.
      QMetaObject::invokeMethod(files, "accept", Qt::QueuedConnection);
    } else if (auto* box = qobject_cast<QMessageBox*>(dialog)) {
      if (QAbstractButton* yes = box->button(QMessageBox::Yes)) return yes->click();
      // A file that cannot be looked at may have been changed as well: Cancel leaves it.
      const bool isQuestion = box->objectName() == "frmChangedFile";
      std::cerr << (isQuestion ? "It may have been changed." : box->text().toStdString()) << '\n';
      refused_ = true;
      box->reject();
    }
  }

  QString file_;
  QTimer timer_;
  bool chosen_ = false;
  bool refused_ = false;
};

int Saved(const std::string& command, const char* game, const char* file) {
  tests::ScriptedMessages none;
  const tests::TemporaryDirectory own;
  const ui::Places places{tests::DataDirectory(), own.Path() / "config", own.Path() / "state"};
  ui::MainWindow window(ui::startProgram(places, game, none), places);
  window.findChild<ui::ExportCommands*>()->setOpener([](const QUrl&) { return true; });
  window.show();
  if (auto* line = window.findChild<QLineEdit*>("txtOrder"); line->isVisible()) {
    line->setText("FRA A(Par) - Bur");
    emit line->returnPressed();
  }
  const Answers answers(file);
  window.findChild<QAction*>(Entries.at(command))->trigger();
  return answers.WasRefused() ? EXIT_FAILURE : EXIT_SUCCESS;
}

}  // namespace

int main(int argc, char* argv[]) {
  if (argc < 3) {
    std::cerr << "Usage: save_in_window save|saveas|bitmap|text|orders GAME [FILE]\n";
    return 2;
  }
  qputenv("QT_QPA_PLATFORM", "offscreen");
  qInstallMessageHandler([](QtMsgType, const QMessageLogContext&, const QString&) {});
  const ui::Application application(argc, argv);
  try {
    return Saved(argv[1], argv[2], argc > 3 ? argv[3] : "");
  } catch (const std::exception& fault) {
    // A game that cannot be read is told before there is a window.
    std::cerr << fault.what() << '\n';
    return EXIT_FAILURE;
  }
}
