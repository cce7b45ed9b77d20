#include "ui/map/map_picture.h"

#include "model/errors.h"
#include "render/drawing.h"
#include "render/map_view.h"
#include "render/map_walk.h"
#include "render/qt/canvas.h"
#include "render/qt/map_file.h"
#include "render/qt/painter_surface.h"
#include "text/qt/text_codec.h"
#include "ui/map/map_accessibility.h"
#include "ui/map/picture_painting.h"
#include "ui/session/attempt.h"

#include <QApplication>
#include <QKeyEvent>
#include <QMenu>
#include <QMouseEvent>
#include <QPainter>

#include <algorithm>
#include <utility>

namespace orb::ui {
namespace {

/// Beyond this the picture is enlarged rather than drawn larger: it would only cost memory.
constexpr int LargestPicture = 4096;

}  // namespace

MapPicture::MapPicture(const Desk& desk, model::Messages& messages, QWidget* parent)
    : QWidget(parent), m_desk(desk), m_messages(messages) {
  // First: a name is told to screen readers at once, who then ask what the map is.
  makeMapsAccessible();
  setObjectName(QStringLiteral("picMap"));
  setAccessibleName(tr("Map"));
  setMouseTracking(true);
  setFocusPolicy(Qt::StrongFocus);
  // The picture fills the widget, so nothing needs to be cleared before.
  setAttribute(Qt::WA_OpaquePaintEvent);
  // Decoded while the rest of the window is made: it takes about as long.
  m_pictures.Fetch(backgroundFile(desk.view()));
}

void MapPicture::draw(const session::Situation& situation, const View& view) {
  const QImage image =
      render::MapImage(situation.Game, view.mapOptions, m_desk.dataDirectory(), fittingPixelWidth(),
                       m_pictures, shownOrders(situation, view));
  m_picture = QPixmap::fromImage(image);
  measure(view);
  update();
}

void MapPicture::measure(const View& view) {
  const QImage& background = m_pictures.Picture(backgroundFile(view));
  m_naturalSize = (render::NaturalSize(background) / render::TwipsPerPixel).toSize();
}

std::filesystem::path MapPicture::backgroundFile(const View& view) const {
  return render::BackgroundFile(m_desk.dataDirectory(), view.mapOptions.Mode);
}

void MapPicture::setMarks(std::vector<std::string> locations) {
  if (m_marks == locations) return;
  m_marks = std::move(locations);
  update();
}

void MapPicture::setOverlay(MapOverlay overlay) {
  m_overlay = std::move(overlay);
  update();
}

int MapPicture::locationAt(QPointF position) {
  return spotAt(position, Qt::NoModifier).locationFor("A");
}

void MapPicture::paintEvent(QPaintEvent* /*event*/) {
  if (m_picture.width() != fittingPixelWidth()) drawAgain();
  QPainter painter(this);
  paintFilling(*this, m_picture, painter);
  const QSizeF natural = QSizeF(m_naturalSize) * render::TwipsPerPixel;
  render::PainterSurface surface(painter, QRectF(rect()),
                                 render::TwipsFor(natural, fittingPixelWidth()), m_pictures);
  paintMarks(surface);
  if (hasFocus() && m_stop != 0) {
    drawFocus(surface, render::UnitPoint(m_desk.game().Map->Provinces[m_stop]));
  }
  if (m_overlay) m_overlay(painter, surface);
}

void MapPicture::drawAgain() {
  try {
    draw(m_desk.shown(), m_desk.shownView());
  } catch (const model::FatalError&) {
    // A bitmap that vanished meanwhile is reported by the next command; till then the old picture
    // stays.
  }
}

void MapPicture::paintMarks(render::Surface& surface) const {
  for (const std::string& location : m_marks) {
    const int row = model::FindProvince(*m_desk.game().Map, location);
    if (row == 0) continue;
    const model::Province& province = m_desk.game().Map->Provinces[row];
    // The first is the order's own unit.
    drawRing(surface, {province.UnitX, province.UnitY},
             location == m_marks.front() ? BoldRing : ThinRing);
  }
}

int MapPicture::fittingPixelWidth() const {
  const double pixels = width() * devicePixelRatioF();
  return std::clamp(static_cast<int>(pixels), 1, LargestPicture);
}

const render::HitMap& MapPicture::hitMap() {
  // Loaded at the first click or move. If that fails, the error is shown once, and an empty one is
  // used.
  if (!m_hitMap) {
    m_hitMap.emplace(aspect());
    attempt(m_messages, [&] {
      m_hitMap = render::LoadHitMap(m_desk.dataDirectory(), *m_desk.game().Map, aspect());
    });
  }
  return *m_hitMap;
}

double MapPicture::aspect() const {
  return static_cast<double>(m_naturalSize.width()) / m_naturalSize.height();
}

MapSpot MapPicture::spotAt(QPointF position, Qt::KeyboardModifiers modifiers) {
  const render::Point point{position.x() / width(), position.y() / height()};
  return {m_desk.game(), hitMap(), point, modifiers};
}

void MapPicture::mousePressEvent(QMouseEvent* event) {
  if (event->button() != Qt::LeftButton) return event->ignore();
  m_pressed = event->position();
  m_dragging = false;
}

void MapPicture::mouseMoveEvent(QMouseEvent* event) {
  // The view scrolls with the middle button.
  event->setAccepted((event->buttons() & Qt::MiddleButton) == 0);
  hover(locationAt(event->position()));
  if (!m_pressed) return;
  // A hand is never quite still: a short way is still a click.
  const bool far =
      (event->position() - *m_pressed).manhattanLength() >= QApplication::startDragDistance();
  if (!m_dragging && far) {
    m_dragging =
        m_tool != nullptr && m_tool->mapDragStarted(spotAt(*m_pressed, event->modifiers()));
    if (!m_dragging) m_pressed.reset();
  }
  if (m_dragging && m_tool != nullptr)
    m_tool->mapDragMoved(spotAt(event->position(), event->modifiers()));
}

void MapPicture::mouseReleaseEvent(QMouseEvent* event) {
  if (event->button() != Qt::LeftButton) return event->ignore();
  const bool pressed = m_pressed.has_value();
  m_pressed.reset();
  if (m_tool == nullptr || !pressed) return;
  const MapSpot spot = spotAt(event->position(), event->modifiers());
  if (std::exchange(m_dragging, false)) {
    m_tool->mapDropped(spot);
  } else {
    m_tool->mapClicked(spot);
  }
}

void MapPicture::mouseDoubleClickEvent(QMouseEvent* event) {
  if (event->button() != Qt::LeftButton || m_tool == nullptr) return event->ignore();
  if (!m_tool->mapDoubleClicked(spotAt(event->position(), event->modifiers()))) {
    mousePressEvent(event);
  }
}

void MapPicture::leaveEvent(QEvent* event) {
  QWidget::leaveEvent(event);
  hover(0);
}

void MapPicture::hover(int location) {
  if (std::exchange(m_hovered, location) != location) emit hovered(location);
}

void MapPicture::focusInEvent(QFocusEvent* event) {
  QWidget::focusInEvent(event);
  update();
  const bool byKey =
      event->reason() == Qt::TabFocusReason || event->reason() == Qt::BacktabFocusReason;
  if (!byKey) return;
  if (m_stop == 0) return goTo(render::StopNearest(*m_desk.game().Map, {0.5, 0.5}, aspect()));
  hover(m_stop);
}

void MapPicture::focusOutEvent(QFocusEvent* event) {
  QWidget::focusOutEvent(event);
  update();
}

void MapPicture::keyPressEvent(QKeyEvent* event) {
  const auto walk = [this](render::Direction direction) {
    goTo(render::StopTowards(*m_desk.game().Map, m_stop, direction, aspect()));
  };
  switch (event->key()) {
    case Qt::Key_Left:
      return walk(render::Direction::Left);
    case Qt::Key_Right:
      return walk(render::Direction::Right);
    case Qt::Key_Up:
      return walk(render::Direction::Up);
    case Qt::Key_Down:
      return walk(render::Direction::Down);
    case Qt::Key_Return:
    case Qt::Key_Enter:
      if (m_stop != 0) clickOn(m_stop, event->modifiers());
      return;
    default:
      break;
  }
  const bool command = (event->modifiers() & ~(Qt::ShiftModifier | Qt::KeypadModifier)) != 0;
  const QString text = event->text();
  // Plus and minus zoom; a blank or a hyphen can only go on with a name.
  const bool goesOn = !m_typed.isEmpty() && isTyping() && QStringView(u" -").contains(text);
  const bool letter =
      !text.isEmpty() && (text.front().isLetter() || text.front() == u'.' || goesOn);
  if (command || !letter || !goToNamed(text)) QWidget::keyPressEvent(event);
}

bool MapPicture::isTyping() const {
  return m_lastLetter.isValid() && m_lastLetter.elapsed() < QApplication::keyboardInputInterval();
}

bool MapPicture::goToNamed(const QString& letters) {
  const bool goesOn = isTyping();
  m_lastLetter.start();
  if (!goesOn) m_typed.clear();
  // One letter again and again leads from name to name.
  const bool again = m_typed == letters;
  if (!again) m_typed += letters;
  const std::string beginning = text::ToBytes(m_typed).value_or("?");
  const int row =
      render::StopNamed(*m_desk.game().Map, beginning, m_stop, goesOn && !again && m_stop != 0);
  if (row != 0) goTo(row);
  return row != 0;
}

void MapPicture::goTo(int stop) {
  m_stop = stop;
  hover(stop);
  update();
  emit walked();
  tellFocus(*this);
}

QPoint MapPicture::pointOf(int location) const {
  const render::Point point = render::UnitPoint(m_desk.game().Map->Provinces[location]);
  return {qRound(point.X * width()), qRound(point.Y * height())};
}

void MapPicture::clickOn(int location, Qt::KeyboardModifiers modifiers) {
  if (m_tool == nullptr) return;
  const bool here = hasFocus();
  const render::Point point = render::UnitPoint(m_desk.game().Map->Provinces[location]);
  m_tool->mapClicked({m_desk.game(), hitMap(), point, modifiers, location});
  // A click hands the keyboard over to where its words are written; the walk is to go on.
  if (here && qobject_cast<QMenu*>(QApplication::activePopupWidget()) == nullptr) setFocus();
  emit clickedWithoutMouse();
}

}  // namespace orb::ui
