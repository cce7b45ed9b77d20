#include "ui/map/map_view.h"

#include <QGestureEvent>
#include <QInputDevice>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QScrollBar>
#include <QWheelEvent>

#include <algorithm>
#include <cmath>

namespace orb::ui {
namespace {

constexpr double LeastZoom = 0.25;
constexpr double GreatestZoom = 4.0;
constexpr double ZoomStep = 1.25;
/// The part of the view that stays in sight about the place that the keyboard goes to: a sixth.
constexpr int Margin = 6;

}  // namespace

MapView::MapView(MapPicture* map, QWidget* parent) : QScrollArea(parent), m_map(map) {
  setObjectName(QStringLiteral("scrMap"));
  setFrameShape(QFrame::NoFrame);
  setAlignment(Qt::AlignCenter);
  // The map itself takes the keyboard; with two stops the Tab key would seem to do nothing once.
  setFocusPolicy(Qt::NoFocus);
  setWidget(map);
  map->installEventFilter(this);
  map->grabGesture(Qt::PinchGesture);
  connect(map, &MapPicture::walked, this, [this] {
    const QPoint at = m_map->pointOf(m_map->stop());
    ensureVisible(at.x(), at.y(), viewport()->width() / Margin, viewport()->height() / Margin);
  });
}

void MapView::setZoom(std::optional<double> zoom) {
  m_zoom = zoom;
  if (m_zoom) m_zoom = std::clamp(*m_zoom, LeastZoom, GreatestZoom);
  resizeMap();
  emit zoomChanged();
}

void MapView::zoomIn() {
  zoomTo(shownZoom() * ZoomStep, QPointF(viewport()->rect().center()));
}

void MapView::zoomOut() {
  zoomTo(shownZoom() / ZoomStep, QPointF(viewport()->rect().center()));
}

int MapView::fittingWidth(int height) const {
  const QSize natural = m_map->naturalSize();
  if (!m_zoom) return natural.scaled(QWIDGETSIZE_MAX, height, Qt::KeepAspectRatio).width();
  const QSize zoomed = natural * *m_zoom;
  const int scrollBar = zoomed.height() > height ? verticalScrollBar()->sizeHint().width() : 0;
  return zoomed.width() + scrollBar;
}

double MapView::shownZoom() const {
  return static_cast<double>(m_map->width()) / m_map->naturalSize().width();
}

/// The point of the map under the anchor, a point of the viewport, stays where it is.
void MapView::zoomTo(double zoom, QPointF anchor) {
  zoomTo(zoom, anchor, fractionAt(anchor));
}

QPointF MapView::fractionAt(QPointF point) const {
  const QPointF onMap = point - QPointF(m_map->pos());
  return {onMap.x() / m_map->width(), onMap.y() / m_map->height()};
}

void MapView::zoomTo(double zoom, QPointF anchor, QPointF fraction) {
  setZoom(zoom);
  horizontalScrollBar()->setValue(qRound(fraction.x() * m_map->width() - anchor.x()));
  verticalScrollBar()->setValue(qRound(fraction.y() * m_map->height() - anchor.y()));
}

void MapView::resizeMap() {
  const QSize natural = m_map->naturalSize();
  if (natural.isEmpty()) return;
  const QSize wanted =
      m_zoom ? natural * *m_zoom : natural.scaled(maximumViewportSize(), Qt::KeepAspectRatio);
  m_map->resize(wanted.expandedTo(QSize(1, 1)));
}

void MapView::resizeEvent(QResizeEvent* event) {
  QScrollArea::resizeEvent(event);
  if (!m_zoom) resizeMap();
}

void MapView::wheelEvent(QWheelEvent* event) {
  if ((event->modifiers() & Qt::ControlModifier) == 0) return QScrollArea::wheelEvent(event);
  // A touchpad sends parts of a notch.
  const double notches =
      event->angleDelta().y() / static_cast<double>(QWheelEvent::DefaultDeltasPerStep);
  zoomTo(shownZoom() * std::pow(ZoomStep, notches), event->position());
  event->accept();
}

void MapView::keyPressEvent(QKeyEvent* event) {
  switch (event->key()) {
    case Qt::Key_Plus:
      return zoomIn();
    case Qt::Key_Minus:
      return zoomOut();
    default:
      return QScrollArea::keyPressEvent(event);
  }
}

bool MapView::eventFilter(QObject* watched, QEvent* event) {
  return zoomByFingers(*event) || scrollByDragging(*event) ||
         QScrollArea::eventFilter(watched, event);
}

void MapView::scrollBy(QPointF way) {
  horizontalScrollBar()->setValue(horizontalScrollBar()->value() - qRound(way.x()));
  verticalScrollBar()->setValue(verticalScrollBar()->value() - qRound(way.y()));
}

/// On the screen, or on a touchpad that tells of it.
bool MapView::zoomByFingers(QEvent& event) {
  if (event.type() == QEvent::NativeGesture) {
    const auto& gesture = static_cast<const QNativeGestureEvent&>(event);
    if (gesture.gestureType() != Qt::ZoomNativeGesture) return false;
    zoomTo(shownZoom() * (1 + gesture.value()),
           viewport()->mapFromGlobal(gesture.globalPosition()));
    return true;
  }
  if (event.type() != QEvent::Gesture) return false;
  auto& gestures = static_cast<QGestureEvent&>(event);
  const auto* pinch = static_cast<QPinchGesture*>(gestures.gesture(Qt::PinchGesture));
  if (pinch == nullptr) return false;
  gestures.accept(Qt::PinchGesture);
  // The first of the fingers was taken for a tap.
  m_map->forgetPress();
  m_finger.reset();
  const QPointF middle = viewport()->mapFromGlobal(pinch->centerPoint());
  if (pinch->state() == Qt::GestureStarted) {
    m_zoomBefore = shownZoom();
    m_pinched = fractionAt(middle);
  }
  zoomTo(m_zoomBefore * pinch->totalScaleFactor(), middle, m_pinched);
  return true;
}

/// What is neither a tap nor takes anything along moves an enlarged map.
bool MapView::scrollByFinger(QMouseEvent& mouse) {
  const QPoint position = mouse.globalPosition().toPoint();
  if (mouse.type() == QEvent::MouseButtonPress) m_finger = position;
  if (mouse.type() == QEvent::MouseButtonRelease) m_finger.reset();
  if (mouse.type() != QEvent::MouseMove || !m_finger || m_map->isPressed()) return false;
  scrollBy(position - *m_finger);
  m_finger = position;
  return true;
}

bool MapView::scrollByDragging(QEvent& event) {
  if (event.type() != QEvent::MouseButtonPress && event.type() != QEvent::MouseMove &&
      event.type() != QEvent::MouseButtonRelease) {
    return false;
  }
  auto& mouse = static_cast<QMouseEvent&>(event);
  if (mouse.device()->type() == QInputDevice::DeviceType::TouchScreen) return scrollByFinger(mouse);
  const QPoint position = mouse.globalPosition().toPoint();
  if (event.type() == QEvent::MouseButtonPress && mouse.button() == Qt::MiddleButton) {
    m_grip = position;
    m_map->setCursor(Qt::ClosedHandCursor);
    return true;
  }
  if (!m_grip) return false;
  if (event.type() == QEvent::MouseMove) {
    scrollBy(position - *m_grip);
    m_grip = position;
    return true;
  }
  if (mouse.button() != Qt::MiddleButton) return false;
  m_grip.reset();
  m_map->unsetCursor();
  return true;
}

}  // namespace orb::ui
