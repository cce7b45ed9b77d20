#include "ui/entry/power_cell.h"

#include "text/qt/text_codec.h"
#include "ui/widgets/order_marks.h"

#include <QPainter>
#include <QPalette>

#include <algorithm>
#include <cmath>
#include <utility>

namespace orb::ui {
namespace {

using session::Standing;

// Pixels.
constexpr int Padding = 4;
constexpr int BarHeight = 3;
constexpr double Roundness = 3;

OrderMark markOf(Standing standing) {
  switch (standing) {
    case Standing::Missing:
      return OrderMark::Missing;
    case Standing::Doubtful:
      return OrderMark::Doubtful;
    case Standing::Complete:
      return OrderMark::Passes;
    default:
      return OrderMark::None;
  }
}

/// Black or white, whichever stands out from the colour.
QColor inkOn(const QColor& fill) {
  return qGray(fill.rgb()) > 127 ? Qt::black : Qt::white;
}

}  // namespace

PowerCell::PowerCell(QString name, QWidget* parent) : QPushButton(parent), m_name(std::move(name)) {
  setCheckable(true);
  setAutoDefault(true);
  setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
  setAttribute(Qt::WA_Hover);
}

void PowerCell::setColours(const QColor& fill, const QColor& edge) {
  m_fill = fill;
  m_edge = edge;
  update();
}

void PowerCell::showStanding(const session::PowerStanding& standing, model::Stage stage) {
  m_standing = standing;
  m_figure = text::ToQString(FigureOf(standing, stage));
  const QString sentence = text::ToQString(SentenceOf(m_name.toStdString(), standing, stage));
  setAccessibleName(sentence);
  setToolTip(sentence);
  update();
}

QSize PowerCell::sizeHint() const {
  const int line = fontMetrics().height();
  return {fontMetrics().horizontalAdvance(QStringLiteral("+1/+2")) + 2 * Padding,
          line * 5 / 4 + line + BarHeight + 2 * Padding};
}

void PowerCell::paintEvent(QPaintEvent* /*event*/) {
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  paintGround(painter);
  const QRectF inside = QRectF(rect()).adjusted(Padding, Padding, -Padding, -Padding);
  const double side = fontMetrics().height() * 5 / 4.0;
  const double sign = fontMetrics().ascent() + 1;
  const double gap = std::max(0.0, (inside.width() - side - sign) / 3);
  const double left = inside.left() + gap;
  paintInitial(painter, {left, inside.top(), side, side});
  const OrderMark mark = markOf(m_standing.InOneWord());
  paintMark(painter, mark, {left + side + gap, inside.top() + (side - sign) / 2, sign, sign},
            markColours(mark, palette(), QPalette::Active));
  const double below = inside.top() + side;
  paintFigure(painter, {inside.left(), below, inside.width(), inside.bottom() - BarHeight - below});
  paintBar(painter, {inside.left(), inside.bottom() - BarHeight + 1, inside.width(), BarHeight});
}

void PowerCell::paintGround(QPainter& painter) const {
  const QColor line = palette().color(QPalette::Highlight);
  const bool lit = isChecked() || hasFocus();
  QColor ground = palette().color(QPalette::Base);
  if (isDown() || (underMouse() && isEnabled())) ground = palette().color(QPalette::AlternateBase);
  // The chosen one has a frame twice as thick, so that focus and choice can be told apart.
  const double width = isChecked() ? 2 : 1;
  painter.setPen(QPen(lit ? line : palette().color(QPalette::Mid), width,
                      hasFocus() && !isChecked() ? Qt::DotLine : Qt::SolidLine));
  painter.setBrush(ground);
  const double inset = width / 2;
  painter.drawRoundedRect(QRectF(rect()).adjusted(inset, inset, -inset, -inset), Roundness,
                          Roundness);
  if (!hasFocus() || !isChecked()) return;
  painter.setPen(QPen(line, 1, Qt::DotLine));
  painter.setBrush(Qt::NoBrush);
  painter.drawRoundedRect(QRectF(rect()).adjusted(3.5, 3.5, -3.5, -3.5), 1, 1);
}

void PowerCell::paintInitial(QPainter& painter, const QRectF& place) const {
  painter.setPen(QPen(m_edge, 1));
  painter.setBrush(m_fill);
  painter.drawEllipse(place.adjusted(0.5, 0.5, -0.5, -0.5));
  QFont bold = font();
  bold.setBold(true);
  painter.setFont(bold);
  painter.setPen(inkOn(m_fill));
  painter.drawText(place, Qt::AlignCenter, m_name.left(1));
}

void PowerCell::paintFigure(QPainter& painter, const QRectF& place) const {
  QFont fitting = font();
  const double wanted = fontMetrics().horizontalAdvance(m_figure);
  if (wanted > place.width()) {
    fitting.setPixelSize(
        std::max(1, static_cast<int>(QFontInfo(font()).pixelSize() * place.width() / wanted)));
  }
  painter.setFont(fitting);
  const bool idle = m_standing.InOneWord() == Standing::Idle;
  painter.setPen(idle ? faintColour(palette()) : palette().color(QPalette::Text));
  painter.drawText(place, Qt::AlignCenter, m_figure);
}

void PowerCell::paintBar(QPainter& painter, const QRectF& place) const {
  if (m_standing.Due == 0) return;
  const double part =
      std::clamp(static_cast<double>(m_standing.Ordered) / m_standing.Due, 0.0, 1.0);
  painter.setPen(Qt::NoPen);
  painter.setBrush(palette().color(QPalette::Mid));
  painter.drawRect(QRectF(place.left(), place.center().y(), place.width(), 1));
  painter.setBrush(faintColour(palette()));
  painter.drawRect(QRectF(place.left(), place.top(), part * place.width(), place.height()));
}

}  // namespace orb::ui
