#pragma once

#include <QSplitter>

namespace orb::ui {

/// Two parts whose border the user can move. Where it was put is a wish: a part that needs more
/// room for a while, or can use no more, shifts it only as long as that lasts.
class SharedRoom : public QSplitter {
  Q_OBJECT

 public:
  /// What a wish counts of the second part: its pixels, or parts per thousand of the whole.
  enum class Unit : std::uint8_t { Pixels, PerMille };

  /// A wish of 0 leaves it to the second part, as long as the first one has room for some lines.
  SharedRoom(Qt::Orientation orientation, Unit unit, int wish);

  int wish() const { return m_wish; }
  void setWish(int wish);

 protected:
  bool event(QEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;

 private:
  void takeWish();
  void share();
  /// What the second part shall have, in pixels.
  int second() const;
  /// Of both parts together.
  int room() const;

  Unit m_unit;
  int m_wish;
};

}  // namespace orb::ui
