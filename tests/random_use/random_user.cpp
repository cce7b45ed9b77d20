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
#include <QMenu>
#include <QMessageBox>
#include <QMimeData>
#include <QProgressDialog>
#include <QPushButton>
#include <QTest>
#include <QTimer>
#include <QUrl>
#include <QWheelEvent>
#include <QWindow>

#include <algorithm>
#include <array>
#include <utility>

namespace orb::tests {
namespace {

namespace fs = std::filesystem;

constexpr int Remembered = 60;
constexpr int LookingInterval = 250;

const std::array Texts{
    "FRA A(Par) - Bur",
    "ENG F(Lon) - NTH",
    "GER A(Mun) S GER A(Ber) - Sil",
    "RUS disband A(Mos)",
    "TUR build F(Con)",
    "ITA A(Ven) retreat Tus",
    "FRA A(Par) hold",
    "<img src=/dev/zero>",
    "& [*] \t%1 %2",
    "AUS A(Vie) - \xC3\xA4\xE2\x82\xAC",
    "ENG F(NTH) C A(Yor) - Nwy",
    "1903",
    "",
    "xyzzy (((",
};

const std::array Keys{
    Qt::Key_Return, Qt::Key_Return, Qt::Key_Escape, Qt::Key_Tab,       Qt::Key_Backtab,
    Qt::Key_Up,     Qt::Key_Down,   Qt::Key_Left,   Qt::Key_Right,     Qt::Key_Home,
    Qt::Key_End,    Qt::Key_PageUp, Qt::Key_Space,  Qt::Key_Backspace, Qt::Key_Delete,
    Qt::Key_F1,     Qt::Key_F2,     Qt::Key_F3,     Qt::Key_F10,       Qt::Key_Menu,
    Qt::Key_Plus,   Qt::Key_Minus,  Qt::Key_0,      Qt::Key_1,         Qt::Key_A,
    Qt::Key_B,      Qt::Key_C,      Qt::Key_D,      Qt::Key_E,         Qt::Key_G,
    Qt::Key_I,      Qt::Key_N,      Qt::Key_O,      Qt::Key_P,         Qt::Key_R,
    Qt::Key_S,      Qt::Key_T,      Qt::Key_V,      Qt::Key_Y,         Qt::Key_Z,
};

std::string nameOf(const QWidget& widget) {
  const QString name = widget.objectName();
  return std::string(widget.metaObject()->className()) + " " + name.toStdString();
}

/// Where events for the widget arrive as those of the user do.
QWindow* windowOf(const QWidget& widget) {
  return widget.window()->windowHandle();
}

/// QTest would press the modifiers as keys of their own, and the window may be gone after each.
void press(QWidget& target, Qt::Key key, Qt::KeyboardModifiers modifiers = {}) {
  const QPointer<QWindow> window = windowOf(target);
  const QString text =
      QTest::keyToAscii(key) > 0 ? QString(QChar(QTest::keyToAscii(key))) : QString();
  for (const QEvent::Type type : {QEvent::KeyPress, QEvent::KeyRelease}) {
    if (window) qt_handleKeyEvent(window, type, key, modifiers, text);
  }
}

/// Buttons of Qt's own dialogs that would hold the mouse, or change files by their own means.
bool isOutOfBounds(const QWidget& widget) {
  return widget.window()->inherits("QFileDialog") || widget.window()->inherits("QColorDialog") ||
         widget.window()->inherits("QAbstractPrintDialog");
}

/// Of what would be opened in other programs.
const QStringList ElsewhereSchemes{QStringLiteral("mailto"), QStringLiteral("file")};

}  // namespace

RandomUser::RandomUser(unsigned seed, fs::path folder, ui::Places places, DiskWatch& disk)
    : m_random(seed), m_folder(std::move(folder)), m_places(std::move(places)), m_disk(disk) {
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
  const fs::path game = oneOf(games);
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
  if (QWidget* popup = QApplication::activePopupWidget()) return actOn(*popup);
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
  const int chance = below(1000);
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
  actOn(*target);
}

void RandomUser::actOn(QWidget& target) {
  switch (below(10)) {
    case 0:
    case 1:
    case 2:
      return key(target);
    case 3:
    case 4:
      return typeText(target);
    case 5:
      return drag(target);
    case 6:
      return wheel(target);
    default:
      return click(target);
  }
}

void RandomUser::answer(QDialog& dialog) {
  if (auto* files = qobject_cast<QFileDialog*>(&dialog)) return answer(*files);
  if (dialog.objectName() == "frmClosing" || dialog.objectName() == "frmChangedFile") {
    allowOwnFile();
  }
  const int chance = below(100);
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
    return press(dialog, Qt::Key_Return);
  }
  actOn(dialog);
}

void RandomUser::answer(QFileDialog& dialog) {
  const int chance = below(10);
  if (chance < 3) {
    note("cancel " + dialog.windowTitle().toStdString());
    return dialog.reject();
  }
  const bool isSaved = dialog.acceptMode() == QFileDialog::AcceptSave;
  const fs::path file =
      isSaved && chance < 6
          ? m_folder / "out" /
                oneOf(std::vector<const char*>{"a.orb", "B.ORB", "c.bmp", "d.txt", "e.gif", "f"})
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

void RandomUser::key(QWidget& target) {
  const Qt::Key key = oneOf(Keys);
  const Qt::KeyboardModifiers modifiers = someModifiers();
  note("key " + std::to_string(key) + " with " + std::to_string(modifiers.toInt()) + " to " +
       nameOf(target));
  press(target, key, modifiers);
}

void RandomUser::typeText(QWidget& target) {
  QWidget* focus = target.focusWidget();
  if (focus == nullptr || !focus->isEnabled()) return click(target);
  const QString text = QString::fromUtf8(oneOf(Texts));
  note("type " + text.toStdString() + " into " + nameOf(*focus));
  const QPointer<QWidget> alive(focus);
  for (const QChar character : text) {
    QKeyEvent typed(QEvent::KeyPress, 0, Qt::NoModifier, character);
    if (alive) QApplication::sendEvent(alive, &typed);
  }
  if (alive && below(3) > 0) press(*alive, Qt::Key_Return);
}

void RandomUser::click(QWidget& target) {
  QWidget& widget = someWidget(target);
  if (windowOf(widget) == nullptr || isOutOfBounds(widget)) return;
  const QPoint point = widget.mapTo(widget.window(), somePoint(widget));
  const Qt::MouseButton button = below(8) == 0 ? Qt::RightButton : Qt::LeftButton;
  note("click " + nameOf(widget));
  if (below(6) == 0) return QTest::mouseDClick(windowOf(widget), button, {}, point);
  QTest::mouseClick(windowOf(widget), button, below(4) == 0 ? someModifiers() : Qt::NoModifier,
                    point);
}

void RandomUser::drag(QWidget& target) {
  QWidget& widget = someWidget(target);
  QWindow* window = windowOf(widget);
  if (window == nullptr || isOutOfBounds(widget)) return;
  note("drag " + nameOf(widget));
  const auto point = [&] { return widget.mapTo(widget.window(), somePoint(widget)); };
  QTest::mousePress(window, Qt::LeftButton, {}, point());
  QPointer<QWindow> alive(window);
  for (int i = below(5); i >= 0 && alive; --i)
    QTest::mouseMove(alive, point());
  if (alive) QTest::mouseRelease(alive, Qt::LeftButton, {}, point());
}

void RandomUser::wheel(QWidget& target) {
  QWidget& widget = someWidget(target);
  const QPointF point = somePoint(widget);
  note("wheel over " + nameOf(widget));
  QWheelEvent event(point, widget.mapToGlobal(point), {}, {0, below(2) == 0 ? 120 : -120},
                    Qt::NoButton, someModifiers(), Qt::NoScrollPhase, false);
  QApplication::sendEvent(&widget, &event);
}

/// An entry of a menu, as if by the menu or its keys.
void RandomUser::choose() {
  QList<QAction*> entries;
  for (QAction* action : m_window->findChildren<QAction*>()) {
    if (action->objectName().startsWith("mnu") && action->isEnabled() && action->isVisible())
      entries << action;
  }
  if (entries.isEmpty()) return;
  QAction* entry = entries[below(static_cast<int>(entries.size()))];
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
  for (int i = below(12); i >= 0; --i)
    text += QString::fromUtf8(oneOf(Texts)) + (below(3) == 0 ? " (maybe)\n" : "\n");
  note("clipboard");
  QApplication::clipboard()->setText(text);
}

void RandomUser::resize() {
  note("resize");
  switch (below(6)) {
    case 0:
      return m_window->showMaximized();
    case 1:
      return m_window->showFullScreen();
    case 2:
      return m_window->showNormal();
    default:
      m_window->resize(100 + below(1500), 100 + below(1100));
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

QWidget& RandomUser::someWidget(QWidget& target) {
  QList<QWidget*> shown;
  for (QWidget* widget : target.findChildren<QWidget*>()) {
    if (widget->isVisible() && widget->window() == target.window() &&
        !widget->visibleRegion().isEmpty())
      shown << widget;
  }
  return shown.isEmpty() ? target : *shown[below(static_cast<int>(shown.size()))];
}

QPoint RandomUser::somePoint(const QWidget& widget) {
  const QRect seen = widget.visibleRegion().boundingRect();
  return seen.topLeft() +
         QPoint(below(std::max(1, seen.width())), below(std::max(1, seen.height())));
}

Qt::KeyboardModifiers RandomUser::someModifiers() {
  const std::array modifiers{Qt::KeyboardModifiers(),
                             Qt::KeyboardModifiers(),
                             Qt::KeyboardModifiers(),
                             Qt::KeyboardModifiers(Qt::ControlModifier),
                             Qt::KeyboardModifiers(Qt::AltModifier),
                             Qt::KeyboardModifiers(Qt::ShiftModifier),
                             Qt::ControlModifier | Qt::ShiftModifier};
  return oneOf(modifiers);
}

fs::path RandomUser::someFile() {
  const std::vector<const char*> names{"moves.orb",  "retreats.orb", "adjustments.orb",
                                       "broken.orb", "orders.txt",   "mail.eml",
                                       "missing",    "pipe",         "out/a.orb"};
  return m_folder / oneOf(names);
}

}  // namespace orb::tests
