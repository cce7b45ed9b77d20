#include "ui/widgets/edged_style.h"

#include "ui/widgets/order_marks.h"

#include <QPainter>
#include <QStyleOption>

#include <algorithm>

namespace orb::ui {

void EdgedStyle::drawPrimitive(PrimitiveElement element, const QStyleOption* option,
                               QPainter* painter, const QWidget* widget) const {
  QProxyStyle::drawPrimitive(element, option, painter, widget);
  const bool isRound = element == PE_IndicatorRadioButton;
  const bool isTicked =
      isRound || element == PE_IndicatorCheckBox || element == PE_IndicatorItemViewItemCheck;
  // Its own edges are darker than the ground, which on a dark one is none at all.
  if (!isTicked || option->palette.color(QPalette::Window).lightness() >= 128) return;
  const auto group = option->state.testFlag(State_Enabled) ? QPalette::Active : QPalette::Disabled;
  painter->save();
  painter->setRenderHint(QPainter::Antialiasing);
  painter->setPen(QPen(faintColour(option->palette, group), 1));
  painter->setBrush(Qt::NoBrush);
  const QRectF place = QRectF(option->rect).adjusted(0.5, 0.5, -0.5, -0.5);
  const double side = std::min(place.width(), place.height());
  QRectF edge(0, 0, side, side);
  edge.moveCenter(place.center());
  if (isRound)
    painter->drawEllipse(edge);
  else
    painter->drawRect(edge);
  painter->restore();
}

}  // namespace orb::ui
