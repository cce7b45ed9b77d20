#pragma once

#include <QPoint>
#include <QWidget>

#include <functional>
#include <iterator>
#include <random>
#include <string>

class QPointingDevice;

namespace orb::tests {

/// What a widget is called in the notes of what was done.
std::string nameOf(const QWidget& widget);

/// Keys, mouse and fingers on a window, at random places.
class RandomHands {
 public:
  using Note = std::function<void(const std::string& deed)>;

  RandomHands(unsigned seed, Note note);

  /// One thing with the keys, the mouse or the fingers somewhere in the window.
  void actOn(QWidget& target);

  /// A key by itself, without any choice.
  static void press(QWidget& target, Qt::Key key, Qt::KeyboardModifiers modifiers = {});

  /// One of the texts that are typed.
  const char* someText();

  int below(int bound) { return static_cast<int>(m_random() % static_cast<unsigned>(bound)); }
  template <class Values>
  const auto& oneOf(const Values& values) {
    return values[static_cast<std::size_t>(below(static_cast<int>(std::size(values))))];
  }

 private:
  void key(QWidget& target);
  void typeText(QWidget& target);
  void click(QWidget& target);
  void drag(QWidget& target);
  void wheel(QWidget& target);
  /// A tap, a drag with one finger, or two fingers that part or meet.
  void touch(QWidget& target);
  QWidget& someWidget(QWidget& target);
  QPoint somePoint(const QWidget& widget);
  Qt::KeyboardModifiers someModifiers();

  std::mt19937 m_random;
  Note m_note;
  QPointingDevice* m_screen;
};

}  // namespace orb::tests
