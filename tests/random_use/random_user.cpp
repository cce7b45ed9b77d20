#include "random_use/random_user.h"

#include "model/files.h"
#include "support/scripted_messages.h"
#include "ui/output/export_commands.h"

#include <QAbstractPrintDialog>
#include <QAction>
#include <QApplication>
#include <QClipboard>
#include <QColorDialog>
#include <QDesktopServices>
#include <QDropEvent>
#include <QFileDialog>
#include <QLabel>
#include <QLineEdit>
#include <QMimeData>
#include <QTimer>
#include <QUrl>

#include <algorithm>
#include <array>
#include <utility>

namespace orb::tests {
namespace {

namespace fs = std::filesystem;

constexpr int Remembered = 60;
constexpr int LookingInterval = 250;

/// Of what would be opened in other programs.
const QStringList ElsewhereSchemes{QStringLiteral("mailto"), QStringLiteral("file")};

}  // namespace

RandomUser::RandomUser(unsigned seed, fs::path folder, ui::Places places, DiskWatch& disk)
    : m_hands(seed, [this](const std::string& deed) { note(deed); }),
      m_folder(std::move(folder)),
      m_places(std::move(places)),
      m_disk(disk) {
  for (const QString& scheme : ElsewhereSchemes)
    QDesktopServices::setUrlHandler(scheme, this, "leaveClosed");
}

RandomUser::~RandomUser() {
  for (const QString& scheme : ElsewhereSchemes)
    QDesktopServices::unsetUrlHandler(scheme);
}

void RandomUser::use(int events) {
  m_wanted = events;
  open();
  plan();
}

std::vector<std::string> RandomUser::lastDeeds() const {
  return m_deeds;
}

void RandomUser::note(const std::string& deed) {
  m_deeds.push_back(std::to_string(m_done) + " " + deed);
  if (m_deeds.size() > Remembered) m_deeds.erase(m_deeds.begin());
}

void RandomUser::plan() {
  if (std::exchange(m_planned, true)) return;
  QTimer::singleShot(0, this, &RandomUser::step);
}

void RandomUser::step() {
  m_planned = false;
  ++m_done;
  // Comes up only if a dialog of this step runs the event loop.
  QTimer waiting;
  waiting.setSingleShot(true);
  connect(&waiting, &QTimer::timeout, this, [this] {
    ++m_dialogs;
    plan();
  });
  waiting.start(5);
  ++m_running;
  m_done >= m_wanted ? finish() : act();
  --m_running;
  const bool isOver = m_done >= m_wanted && m_running == 0 && m_window == nullptr;
  if (!isOver) plan();
}

/// Away with all that is open, one thing a step.
void RandomUser::finish() {
  if (QWidget* popup = QApplication::activePopupWidget()) {
    popup->close();
  } else if (auto* dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget())) {
    dialog->reject();
  } else if (m_running == 1) {
    m_window.reset();
    lookAtDisk();
    QCoreApplication::quit();
  }
}

void RandomUser::open() {
  ScriptedMessages none;
  m_window.reset();
  ++m_starts;
  const std::vector<const char*> games{"", "moves.orb", "retreats.orb", "adjustments.orb"};
  const fs::path game = m_hands.oneOf(games);
  ui::Start start = [&] {
    try {
      return ui::startProgram(m_places, game.empty() ? game : m_folder / game, none);
    } catch (const std::exception&) {
      // It was saved over with what no start can take.
      return ui::startProgram(m_places, {}, none);
    }
  }();
  note("start " + game.string());
  m_window = std::make_unique<ui::MainWindow>(std::move(start), m_places);
  m_window->findChild<ui::ExportCommands*>()->setOpener([](const QUrl&) { return true; });
  connect(m_window->findChild<QAction*>("mnuFileSave"), &QAction::triggered, this,
          &RandomUser::allowOwnFile);
  m_window->show();
  QTimer::singleShot(0, m_window.get(), &ui::MainWindow::offerRecovery);
}

void RandomUser::act() {
  // Between a dialog and the writing that it leads to nothing can be said yet.
  if (m_done - m_looked >= LookingInterval && m_running == 1) lookAtDisk();
  if (QWidget* popup = QApplication::activePopupWidget()) return m_hands.actOn(*popup);
  if (auto* dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget())) {
    return answer(*dialog);
  }
  if (!m_window->isVisible()) {
    // Its own events may still be under way while a dialog of it is open.
    if (m_running == 1) open();
    return;
  }
  useWindow();
}

void RandomUser::useWindow() {
  const int chance = m_hands.below(1000);
  if (chance < 8) return resize();
  if (chance < 14) return drop();
  if (chance < 24) return fillClipboard();
  if (chance < 26 && m_running == 1) {
    note("killed");
    m_window->keepAll();
    return open();
  }
  if (chance < 110) return choose();
  QWidget* target = m_window.get();
  if (chance < 200) {
    // The help window stands beside.
    auto* help = m_window->findChild<QWidget*>("frmHelp");
    if (help != nullptr && help->isVisible()) target = help;
  }
  m_hands.actOn(*target);
}

void RandomUser::answer(QDialog& dialog) {
  if (auto* files = qobject_cast<QFileDialog*>(&dialog)) return answer(*files);
  if (dialog.objectName() == "frmClosing" || dialog.objectName() == "frmChangedFile") {
    allowOwnFile();
  }
  const int chance = m_hands.below(100);
  if (chance < 8) {
    note("reject " + nameOf(dialog));
    return dialog.reject();
  }
  if (qobject_cast<QColorDialog*>(&dialog) != nullptr ||
      qobject_cast<QAbstractPrintDialog*>(&dialog) != nullptr) {
    // Prints to a file that the dialog proposes: not here.
    const bool isColour = qobject_cast<QColorDialog*>(&dialog) != nullptr;
    note("answer " + nameOf(dialog));
    return isColour && chance < 60 ? dialog.accept() : dialog.reject();
  }
  if (chance < 16) {
    note("Return in " + nameOf(dialog));
    return RandomHands::press(dialog, Qt::Key_Return);
  }
  m_hands.actOn(dialog);
}

void RandomUser::answer(QFileDialog& dialog) {
  const int chance = m_hands.below(10);
  if (chance < 3) {
    note("cancel " + dialog.windowTitle().toStdString());
    return dialog.reject();
  }
  const bool isSaved = dialog.acceptMode() == QFileDialog::AcceptSave;
  const fs::path file = isSaved && chance < 6
                            ? m_folder / "out" /
                                  m_hands.oneOf(std::vector<const char*>{"a.orb", "B.ORB", "c.bmp",
                                                                         "d.txt", "e.gif", "f"})
                            : someFile();
  note("file " + file.string());
  if (isSaved) {
    const bool isGame = dialog.windowTitle().endsWith("Save As");
    const auto as = isGame ? DiskWatch::As::Game : DiskWatch::As::Anything;
    m_disk.allow(isGame ? model::LowerCaseName(file) : file, as);
  }
  dialog.findChild<QLineEdit*>()->setText(QString::fromStdString(file.string()));
  QMetaObject::invokeMethod(&dialog, "accept");
}

/// An entry of a menu, as if by the menu or its keys.
void RandomUser::choose() {
  QList<QAction*> entries;
  for (QAction* action : m_window->findChildren<QAction*>()) {
    if (action->objectName().startsWith("mnu") && action->isEnabled() && action->isVisible())
      entries << action;
  }
  if (entries.isEmpty()) return;
  QAction* entry = entries[m_hands.below(static_cast<int>(entries.size()))];
  note("entry " + entry->objectName().toStdString());
  entry->trigger();
}

void RandomUser::drop() {
  const fs::path file = someFile();
  note("drop " + file.string());
  QMimeData data;
  data.setUrls({QUrl::fromLocalFile(QString::fromStdString(file.string()))});
  QDragEnterEvent enter({9, 9}, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
  QApplication::sendEvent(m_window.get(), &enter);
  QDropEvent event({9, 9}, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
  QApplication::sendEvent(m_window.get(), &event);
}

void RandomUser::fillClipboard() {
  QString text = "FRANCE\n";
  for (int i = m_hands.below(12); i >= 0; --i)
    text += QString::fromUtf8(m_hands.someText()) + (m_hands.below(3) == 0 ? " (maybe)\n" : "\n");
  note("clipboard");
  QApplication::clipboard()->setText(text);
}

void RandomUser::resize() {
  note("resize");
  switch (m_hands.below(6)) {
    case 0:
      return m_window->showMaximized();
    case 1:
      return m_window->showFullScreen();
    case 2:
      return m_window->showNormal();
    default:
      m_window->resize(100 + m_hands.below(1500), 100 + m_hands.below(1100));
  }
}

void RandomUser::allowOwnFile() {
  const QString file = m_window->findChild<QLabel*>("lblFileName")->text();
  m_disk.allow(m_folder / file.toStdString(), DiskWatch::As::Game);
}

void RandomUser::lookAtDisk() {
  m_looked = m_done;
  for (const std::string& fault : m_disk.look())
    m_faults.push_back("by event " + std::to_string(m_done) + " " + fault);
}

fs::path RandomUser::someFile() {
  const std::vector<const char*> names{"moves.orb",  "retreats.orb", "adjustments.orb",
                                       "broken.orb", "orders.txt",   "mail.eml",
                                       "missing",    "pipe",         "out/a.orb"};
  return m_folder / m_hands.oneOf(names);
}

}  // namespace orb::tests
