#include "end_signals.h"
#ifdef ORB_PORTAL
#include "desktop_portal.h"
#endif

#include "model/errors.h"
#include "model/files.h"
#include "ui/session/attempt.h"
#include "ui/window/application.h"
#include "ui/window/main_window.h"

#include <QDir>
#include <QFile>
#include <QStandardPaths>
#include <QTimer>

#include <cstdlib>
#include <filesystem>
#include <iostream>
#include <memory>
#include <string>
#include <string_view>

namespace {

using namespace orb;

/// Printed on the terminal; nobody who starts the program from a menu sees it.
constexpr std::string_view Usage =
    "Usage: orb [GAME]\n"
    "Opens the window with a new game, or with the game file GAME.\n";

/// Where the user or the test has not chosen a platform, lets Qt fall back on a hidden one instead
/// of ending the program. False where there is no display to try.
bool choosePlatform() {
  if (qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) return true;
  const bool wayland = qEnvironmentVariableIsSet("WAYLAND_DISPLAY");
  if (!wayland && !qEnvironmentVariableIsSet("DISPLAY")) return false;
  qputenv("QT_QPA_PLATFORM", wayland ? "wayland;xcb;offscreen" : "xcb;offscreen");
  return true;
}

/// A failed start is reported in a box, or on standard error where there is no display.
class StartMessages : public ui::MessageBoxes {
 public:
  explicit StartMessages(bool display) : MessageBoxes(nullptr), m_display(display) {}

  void Show(const std::string& text, model::Icon icon) override {
    if (m_display) return MessageBoxes::Show(text, icon);
    std::cerr << ui::displayText(text).toStdString() << '\n';
  }

 private:
  bool m_display;
};

/// The user's own directory for what outlives the program but is no setting, as the desktops have
/// agreed on it. Qt does not know it yet.
std::filesystem::path stateDirectory() {
  const std::filesystem::path chosen = qgetenv("XDG_STATE_HOME").toStdString();
  // A relative path counts for nothing there.
  if (chosen.is_absolute()) return chosen / "orb";
  return std::filesystem::path(QFile::encodeName(QDir::homePath()).toStdString()) /
         ".local/state/orb";
}

/// The data files lie next to the program, so that a folder with both can be moved as a whole.
ui::Places systemPlaces() {
  const QString config = QStandardPaths::writableLocation(QStandardPaths::AppConfigLocation);
  return {model::ProgramDirectory(), QFile::encodeName(config).toStdString(), stateDirectory()};
}

int runProgram(const std::filesystem::path& gameFile, bool display) {
  StartMessages messages(display);
  // Stays so when the start fails before the event loop has run.
  int status = EXIT_FAILURE;
  ui::attempt(messages, [&] {
    const ui::Places places = systemPlaces();
    ui::Start start = ui::startProgram(places, gameFile, messages);
    // Only now, so that a faulty game file is reported first: it would fail on any display.
    if (!display) {
      throw model::FatalError(
          "There is no display (DISPLAY, WAYLAND_DISPLAY) for the window; orbctl needs none.");
    }
    ui::MainWindow window(std::move(start), places);
#ifdef ORB_PORTAL
    const ui::DesktopPortal portal;
#endif
    const ui::EndSignals endSignals([&window] { window.keepAll(); });
    window.show();
    // From the event loop, so that the end of the window ends the program.
    QTimer::singleShot(0, &window, &ui::MainWindow::offerRecovery);
    status = QApplication::exec();
  });
  return status;
}

}  // namespace

int main(int argc, char* argv[]) {
  QApplication::setApplicationName(QStringLiteral("orb"));
  // By this name a desktop finds the window's icon and menu entry.
  QApplication::setDesktopFileName(QStringLiteral("org.orb_desk.Orb"));
  const bool tried = choosePlatform();
  // Tests ask for the hidden platform by name; one that Qt merely fell back on is no display.
  const bool hiddenAskedFor = qgetenv("QT_QPA_PLATFORM") == "offscreen";
  std::unique_ptr<ui::Application> application;
  if (tried) application = std::make_unique<ui::Application>(argc, argv);
  const bool display =
      tried && (hiddenAskedFor || QApplication::platformName() != QLatin1String("offscreen"));

  // Qt has taken its own options out of the arguments by now.
  const std::string_view argument = argc > 1 ? argv[1] : "";
  if (argument == "--help" || argument == "-h") {
    std::cout << Usage;
    return EXIT_SUCCESS;
  }
  if (argument == "--version") {
    std::cout << model::ProgramName << '\n';
    return EXIT_SUCCESS;
  }
  if (argc > 2) {
    std::cerr << Usage;
    return 2;
  }
  return runProgram(argument, display);
}
