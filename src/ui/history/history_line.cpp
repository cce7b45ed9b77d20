#include "ui/history/history_line.h"

#include "ui/widgets/controls.h"
#include "ui/widgets/game_name.h"
#include "ui/widgets/order_marks.h"

#include <QFile>
#include <QHelpEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QToolTip>

#include <algorithm>
#include <cmath>

namespace orb::ui {
namespace {

using history::Moment;
using model::Stage;

// In pixels.
constexpr double Side = 14;     ///< left and right of the first and last mark
constexpr double Middle = 9;    ///< of the marks, from the top
constexpr double Radius = 3.5;  ///< of a mark
constexpr double PresentMark = 5.5;
constexpr double ShownRing = 8;
constexpr int YearGap = 6;

/// As high as the letters below the marks can be and still be read.
QFont smallFont(QFont font) {
  constexpr double part = 0.85;
  font.setPointSizeF(font.pointSizeF() > 0 ? font.pointSizeF() * part : 8);
  return font;
}

}  // namespace

QString momentName(const Moment& moment) {
  return stageCaption(moment.Season, moment.Year, moment.Stage);
}

HistoryLine::HistoryLine(QWidget* parent) : QAbstractSlider(parent) {
  setObjectName(QStringLiteral("sldHistory"));
  setAccessibleName(tr("Stages of the game"));
  setFocusPolicy(Qt::StrongFocus);
  setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
  setCursor(Qt::PointingHandCursor);
  setPageStep(4);
  connect(this, &QAbstractSlider::valueChanged, this, &HistoryLine::describe);
}

void HistoryLine::setMoments(const std::vector<Moment>& moments, std::size_t present) {
  m_moments = moments;
  m_present = static_cast<int>(present);
  const QSignalBlocker quiet(this);
  setRange(0, static_cast<int>(moments.size()) - 1);
  update();
}

void HistoryLine::showAt(std::size_t index) {
  {
    const QSignalBlocker quiet(this);
    setValue(static_cast<int>(index));
  }
  describe();
  update();
}

void HistoryLine::describe() {
  if (m_moments.empty()) return;
  const auto& moment = m_moments[static_cast<std::size_t>(value())];
  setAccessibleDescription(value() == m_present ? tr("%1, as it is now").arg(momentName(moment))
                                                : momentName(moment));
}

QSize HistoryLine::sizeHint() const {
  const int letters = QFontMetrics(smallFont(font())).ascent();
  return {200, static_cast<int>(Middle + ShownRing) + letters + 3};
}

QSize HistoryLine::minimumSizeHint() const {
  return {80, sizeHint().height()};
}

double HistoryLine::placeOf(int index) const {
  const int steps = std::max(maximum(), 1);
  // A short game is not stretched over a wide window.
  constexpr double widest = 60;
  const double step = std::min(widest, (width() - 2 * Side) / steps);
  return Side + index * step;
}

int HistoryLine::nearest(double x) const {
  const double step = placeOf(1) - placeOf(0);
  return std::clamp(static_cast<int>(std::lround((x - Side) / step)), 0, maximum());
}

void HistoryLine::paintEvent(QPaintEvent* /*event*/) {
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(faintColour(palette()));
  painter.drawLine(QPointF(placeOf(0), Middle), QPointF(placeOf(maximum()), Middle));
  paintYears(painter);
  for (int i = 0; i <= maximum(); ++i)
    paintMark(painter, i);
}

void HistoryLine::paintMark(QPainter& painter, int index) const {
  const QPointF centre(placeOf(index), Middle);
  const auto box = [&](double radius) {
    return QRectF(centre.x() - radius, centre.y() - radius, 2 * radius, 2 * radius);
  };
  const bool isPresent = index == m_present;
  const QColor ink = palette().color(QPalette::WindowText);
  const QColor accent = accentColour(palette().color(QPalette::Window));
  if (index == value()) {
    painter.setPen(QPen(hasFocus() ? accent : ink, hasFocus() ? 2.5 : 1.2));
    painter.setBrush(Qt::NoBrush);
    painter.drawEllipse(box(ShownRing - 1.5));
  }
  const Stage stage = m_moments[static_cast<std::size_t>(index)].Stage;
  // Of a long game the marks are small enough to be told apart.
  const double room = (placeOf(1) - placeOf(0)) * 0.36;
  const double radius = isPresent ? PresentMark - 1 : std::clamp(room, 1.2, Radius);
  const QColor ground = isPresent ? accent : ink;
  painter.setPen(QPen(ground, 1.3));
  painter.setBrush(stage == Stage::Moves ? palette().color(QPalette::Window) : ground);
  switch (stage) {
    case Stage::Retreats:
      return painter.drawPolygon(
          QPolygonF{{centre + QPointF(0, -radius), centre + QPointF(radius, 0),
                     centre + QPointF(0, radius), centre + QPointF(-radius, 0)}});
    case Stage::Adjustments:
      return painter.drawRect(box(radius * 0.8));
    default:
      return painter.drawEllipse(box(radius));
  }
}

/// A year stands below its first mark where there is room.
void HistoryLine::paintYears(QPainter& painter) const {
  painter.setFont(smallFont(font()));
  painter.setPen(palette().color(QPalette::WindowText));
  const QFontMetricsF metrics(painter.font());
  const double base = height() - 2;
  double free = 0;
  for (int i = 0; i <= maximum(); ++i) {
    const Moment& moment = m_moments[static_cast<std::size_t>(i)];
    if (i > 0 && m_moments[static_cast<std::size_t>(i) - 1].Year == moment.Year) continue;
    const QString year = QString::number(moment.Year);
    const double width = metrics.horizontalAdvance(year);
    const double left = std::max(placeOf(i) - width / 2, 0.0);
    if (left < free || left + width > this->width()) continue;
    painter.drawText(QPointF(left, base), year);
    free = left + width + YearGap;
  }
}

void HistoryLine::mousePressEvent(QMouseEvent* event) {
  if (event->button() != Qt::LeftButton) return event->ignore();
  setValue(nearest(event->position().x()));
}

void HistoryLine::mouseMoveEvent(QMouseEvent* event) {
  if (event->buttons() & Qt::LeftButton) setValue(nearest(event->position().x()));
}

/// A wheel that was turned a moment too long must not leave the game.
void HistoryLine::wheelEvent(QWheelEvent* event) {
  event->ignore();
}

bool HistoryLine::event(QEvent* event) {
  if (event->type() == QEvent::FocusIn || event->type() == QEvent::FocusOut) update();
  if (event->type() != QEvent::ToolTip || m_moments.empty()) return QAbstractSlider::event(event);
  const auto& help = static_cast<QHelpEvent&>(*event);
  const auto& moment = m_moments[static_cast<std::size_t>(nearest(help.pos().x()))];
  const QString file = QFile::decodeName(moment.File.filename().c_str());
  QToolTip::showText(help.globalPos(),
                     file.isEmpty() ? tr("%1, as it is now").arg(momentName(moment))
                                    : QStringLiteral("%1 (%2)").arg(momentName(moment), file));
  return true;
}

}  // namespace orb::ui
