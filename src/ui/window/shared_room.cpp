#include "ui/window/shared_room.h"

#include <QEvent>

#include <algorithm>

namespace orb::ui {
namespace {

constexpr int Whole = 1000;
constexpr int RoomGap = 12;

// Of a second part that nobody has given a share to.
constexpr int LeastShare = 360;
constexpr int LinesLeft = 5;

}  // namespace

SharedRoom::SharedRoom(Qt::Orientation orientation, Unit unit, int wish)
    : QSplitter(orientation), m_unit(unit), m_wish(wish) {
  setChildrenCollapsible(false);
  setHandleWidth(RoomGap);
  connect(this, &QSplitter::splitterMoved, this, &SharedRoom::takeWish);
}

void SharedRoom::setWish(int wish) {
  m_wish = wish;
  share();
}

bool SharedRoom::event(QEvent* event) {
  const bool handled = QSplitter::event(event);
  if (event->type() == QEvent::LayoutRequest) share();
  return handled;
}

void SharedRoom::resizeEvent(QResizeEvent* event) {
  QSplitter::resizeEvent(event);
  share();
}

void SharedRoom::takeWish() {
  const int second = sizes().at(1);
  m_wish = m_unit == Unit::Pixels ? second : qRound(1.0 * second * Whole / std::max(1, room()));
}

void SharedRoom::share() {
  const int wanted = second();
  setSizes({std::max(0, room() - wanted), wanted});
}

int SharedRoom::second() const {
  if (m_unit == Unit::Pixels) return m_wish;
  if (m_wish > 0) return qRound(1.0 * room() * m_wish / Whole);
  const int most =
      room() - widget(0)->minimumSizeHint().height() - LinesLeft * fontMetrics().lineSpacing();
  return std::max(std::min(widget(1)->sizeHint().height(), most), room() * LeastShare / Whole);
}

int SharedRoom::room() const {
  return (orientation() == Qt::Horizontal ? width() : height()) - handleWidth();
}

}  // namespace orb::ui
