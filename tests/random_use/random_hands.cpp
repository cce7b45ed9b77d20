#include "random_use/random_hands.h"

#include <QAbstractPrintDialog>
#include <QApplication>
#include <QKeyEvent>
#include <QPointer>
#include <QTest>
#include <QWheelEvent>
#include <QWidget>
#include <QWindow>

#include <algorithm>
#include <array>
#include <utility>
#include <vector>

namespace orb::tests {
namespace {

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

/// Where events for the widget arrive as those of the user do.
QWindow* windowOf(const QWidget& widget) {
  return widget.window()->windowHandle();
}

/// Buttons of Qt's own dialogs that would hold the mouse, or change files by their own means.
bool isOutOfBounds(const QWidget& widget) {
  return widget.window()->inherits("QFileDialog") || widget.window()->inherits("QColorDialog") ||
         widget.window()->inherits("QAbstractPrintDialog");
}

}  // namespace

std::string nameOf(const QWidget& widget) {
  const QString name = widget.objectName();
  return std::string(widget.metaObject()->className()) + " " + name.toStdString();
}

RandomHands::RandomHands(unsigned seed, Note note)
    : m_random(seed), m_note(std::move(note)), m_screen(QTest::createTouchDevice()) {}

const char* RandomHands::someText() {
  return oneOf(Texts);
}

/// QTest would press the modifiers as keys of their own, and the window may be gone after each.
void RandomHands::press(QWidget& target, Qt::Key key, Qt::KeyboardModifiers modifiers) {
  const QPointer<QWindow> window = windowOf(target);
  const QString text =
      QTest::keyToAscii(key) > 0 ? QString(QChar(QTest::keyToAscii(key))) : QString();
  for (const QEvent::Type type : {QEvent::KeyPress, QEvent::KeyRelease}) {
    if (window) qt_handleKeyEvent(window, type, key, modifiers, text);
  }
}

void RandomHands::actOn(QWidget& target) {
  switch (below(11)) {
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
    case 7:
      return touch(target);
    default:
      return click(target);
  }
}

void RandomHands::key(QWidget& target) {
  const Qt::Key key = oneOf(Keys);
  const Qt::KeyboardModifiers modifiers = someModifiers();
  m_note("key " + std::to_string(key) + " with " + std::to_string(modifiers.toInt()) + " to " +
         nameOf(target));
  press(target, key, modifiers);
}

void RandomHands::typeText(QWidget& target) {
  QWidget* focus = target.focusWidget();
  if (focus == nullptr || !focus->isEnabled()) return click(target);
  const QString text = QString::fromUtf8(oneOf(Texts));
  m_note("type " + text.toStdString() + " into " + nameOf(*focus));
  const QPointer<QWidget> alive(focus);
  for (const QChar character : text) {
    QKeyEvent typed(QEvent::KeyPress, 0, Qt::NoModifier, character);
    if (alive) QApplication::sendEvent(alive, &typed);
  }
  if (alive && below(3) > 0) press(*alive, Qt::Key_Return);
}

void RandomHands::click(QWidget& target) {
  QWidget& widget = someWidget(target);
  if (windowOf(widget) == nullptr || isOutOfBounds(widget)) return;
  const QPoint point = widget.mapTo(widget.window(), somePoint(widget));
  const Qt::MouseButton button = below(8) == 0 ? Qt::RightButton : Qt::LeftButton;
  m_note("click " + nameOf(widget));
  if (below(6) == 0) return QTest::mouseDClick(windowOf(widget), button, {}, point);
  QTest::mouseClick(windowOf(widget), button, below(4) == 0 ? someModifiers() : Qt::NoModifier,
                    point);
}

void RandomHands::drag(QWidget& target) {
  QWidget& widget = someWidget(target);
  QWindow* window = windowOf(widget);
  if (window == nullptr || isOutOfBounds(widget)) return;
  m_note("drag " + nameOf(widget));
  // The press may take the window away, or the widget in it.
  const QPointer<QWindow> alive(window);
  const QPointer<QWidget> from(&widget);
  QPoint point = widget.mapTo(widget.window(), somePoint(widget));
  QTest::mousePress(window, Qt::LeftButton, {}, point);
  for (int i = below(5); i >= 0 && alive && from; --i) {
    point = from->mapTo(from->window(), somePoint(*from));
    QTest::mouseMove(alive, point);
  }
  if (alive) QTest::mouseRelease(alive, Qt::LeftButton, {}, point);
}

void RandomHands::wheel(QWidget& target) {
  QWidget& widget = someWidget(target);
  const QPointF point = somePoint(widget);
  m_note("wheel over " + nameOf(widget));
  QWheelEvent event(point, widget.mapToGlobal(point), {}, {0, below(2) == 0 ? 120 : -120},
                    Qt::NoButton, someModifiers(), Qt::NoScrollPhase, false);
  QApplication::sendEvent(&widget, &event);
}

void RandomHands::touch(QWidget& target) {
  // Nothing else in the window makes as much of fingers.
  auto* map = target.findChild<QWidget*>(QStringLiteral("picMap"));
  const bool onMap = map != nullptr && map->isVisible() && below(2) == 0;
  const QWidget& widget = onMap ? *map : someWidget(target);
  const QPointer<QWindow> window = windowOf(widget);
  if (window == nullptr || isOutOfBounds(widget)) return;
  const auto point = [&] { return widget.mapTo(widget.window(), somePoint(widget)); };
  const int fingers = 1 + below(2);
  const int steps = below(4);
  // Where they go is settled before: the widget may be gone, or the map below them moved.
  std::vector<std::vector<QPoint>> ways(static_cast<std::size_t>(fingers));
  for (std::vector<QPoint>& way : ways)
    for (int i = 0; i <= steps; ++i)
      way.push_back(point());
  m_note(std::to_string(fingers) + " fingers, " + std::to_string(steps) + " steps on " +
         nameOf(widget));
  const auto all = [&](auto act) {
    if (!window) return;
    auto event = QTest::touchEvent(window, m_screen, false);
    for (int finger = 0; finger < fingers; ++finger)
      act(event, finger, ways[static_cast<std::size_t>(finger)]);
    event.commit();
  };
  all([&](auto& event, int finger, const auto& way) { event.press(finger, way.front(), window); });
  for (std::size_t step = 1; step < ways.front().size(); ++step)
    all([&](auto& event, int finger, const auto& way) { event.move(finger, way[step], window); });
  all([&](auto& event, int finger, const auto& way) { event.release(finger, way.back(), window); });
}

QWidget& RandomHands::someWidget(QWidget& target) {
  QList<QWidget*> shown;
  for (QWidget* widget : target.findChildren<QWidget*>()) {
    if (widget->isVisible() && widget->window() == target.window() &&
        !widget->visibleRegion().isEmpty())
      shown << widget;
  }
  return shown.isEmpty() ? target : *shown[below(static_cast<int>(shown.size()))];
}

QPoint RandomHands::somePoint(const QWidget& widget) {
  const QRect seen = widget.visibleRegion().boundingRect();
  return seen.topLeft() +
         QPoint(below(std::max(1, seen.width())), below(std::max(1, seen.height())));
}

Qt::KeyboardModifiers RandomHands::someModifiers() {
  const std::array modifiers{Qt::KeyboardModifiers(),
                             Qt::KeyboardModifiers(),
                             Qt::KeyboardModifiers(),
                             Qt::KeyboardModifiers(Qt::ControlModifier),
                             Qt::KeyboardModifiers(Qt::AltModifier),
                             Qt::KeyboardModifiers(Qt::ShiftModifier),
                             Qt::ControlModifier | Qt::ShiftModifier};
  return oneOf(modifiers);
}

}  // namespace orb::tests
