#include "ui/widgets/order_marks.h"

#include "ui/widgets/controls.h"

#include <QApplication>
#include <QPainter>

#include <algorithm>
#include <array>

namespace orb::ui {
namespace {

/// The marks are drawn on a field of this many units.
constexpr double Field = 16;

void paintRing(QPainter& painter, const MarkColours& colours) {
  painter.setPen(QPen(colours.shape, 1.4));
  painter.drawEllipse(QPointF(8, 8), 4.5, 4.5);
}

void paintTick(QPainter& painter, const MarkColours& colours) {
  constexpr std::array<QPointF, 3> Tick{QPointF(3.5, 8.5), QPointF(6.5, 11.5), QPointF(12.5, 4.5)};
  painter.setPen(QPen(colours.shape, 1.5, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
  painter.drawPolyline(Tick.data(), static_cast<int>(Tick.size()));
}

void paintTriangle(QPainter& painter, const MarkColours& colours) {
  constexpr std::array<QPointF, 3> Triangle{QPointF(8, 2.5), QPointF(14, 13.5), QPointF(2, 13.5)};
  painter.setPen(QPen(colours.shape, 1.5, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
  painter.setBrush(colours.shape);
  painter.drawPolygon(Triangle.data(), static_cast<int>(Triangle.size()));
  painter.setPen(QPen(colours.sign, 1.6, Qt::SolidLine, Qt::RoundCap));
  painter.drawLine(QPointF(8, 6), QPointF(8, 9.3));
  painter.drawPoint(QPointF(8, 11.9));
}

void paintInequality(QPainter& painter, const MarkColours& colours) {
  painter.setPen(QPen(colours.shape, 1.6, Qt::SolidLine, Qt::RoundCap));
  painter.drawLine(QPointF(3, 6), QPointF(13, 6));
  painter.drawLine(QPointF(3, 10.5), QPointF(13, 10.5));
  painter.drawLine(QPointF(10.5, 2.5), QPointF(5.5, 14));
}

void paintStop(QPainter& painter, const MarkColours& colours) {
  painter.setPen(Qt::NoPen);
  painter.setBrush(colours.shape);
  painter.drawEllipse(QPointF(8, 8), 6.5, 6.5);
  painter.setPen(QPen(colours.sign, 2, Qt::SolidLine, Qt::RoundCap));
  painter.drawLine(QPointF(5, 8), QPointF(11, 8));
}

void paintShape(QPainter& painter, OrderMark mark, const MarkColours& colours) {
  switch (mark) {
    case OrderMark::Missing:
      return paintRing(painter, colours);
    case OrderMark::Passes:
      return paintTick(painter, colours);
    case OrderMark::Doubtful:
      return paintTriangle(painter, colours);
    case OrderMark::Otherwise:
      return paintInequality(painter, colours);
    case OrderMark::Stopped:
      return paintStop(painter, colours);
    case OrderMark::None:
      break;
  }
}

/// On an item that may be selected.
MarkColours coloursOf(OrderMark mark, const QStyleOptionViewItem& item) {
  const QPalette::ColorGroup group =
      item.state.testFlag(QStyle::State_Active) ? QPalette::Active : QPalette::Inactive;
  // Neither red nor amber is sure to be visible on the highlight.
  if (item.state.testFlag(QStyle::State_Selected)) {
    return {item.palette.color(group, QPalette::HighlightedText),
            item.palette.color(group, QPalette::Highlight)};
  }
  return markColours(mark, item.palette, group);
}

OrderMark markOf(const QModelIndex& index) {
  return static_cast<OrderMark>(index.data(OrderMarkRole).toInt());
}

}  // namespace

MarkColours markColours(OrderMark mark, const QPalette& palette, QPalette::ColorGroup group) {
  const QColor background = palette.color(group, QPalette::Base);
  switch (mark) {
    case OrderMark::Doubtful:
    case OrderMark::Otherwise:
      return {doubtColour(background), background};
    case OrderMark::Stopped:
      return {failureColour(background), background};
    default:
      return {faintColour(palette, group), background};
  }
}

void paintMark(QPainter& painter, OrderMark mark, const QRectF& place, const MarkColours& colours) {
  painter.save();
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setBrush(Qt::NoBrush);
  painter.translate(place.topLeft());
  painter.scale(place.width() / Field, place.height() / Field);
  paintShape(painter, mark, colours);
  painter.restore();
}

QColor faintColour(const QPalette& palette, QPalette::ColorGroup group) {
  // Of the text's own strength; less could not be read by everybody.
  constexpr float Strength = 0.65F;
  const QColor text = palette.color(group, QPalette::Text);
  const QColor base = palette.color(group, QPalette::Base);
  const auto mixed = [](float a, float b) { return Strength * a + (1 - Strength) * b; };
  return QColor::fromRgbF(mixed(text.redF(), base.redF()), mixed(text.greenF(), base.greenF()),
                          mixed(text.blueF(), base.blueF()));
}

void OrderMarkDelegate::initStyleOption(QStyleOptionViewItem* option,
                                        const QModelIndex& index) const {
  QStyledItemDelegate::initStyleOption(option, index);
  const int side = option->fontMetrics.ascent() + 1;
  // Makes Qt leave room for an icon; the mark is painted there instead.
  option->features |= QStyleOptionViewItem::HasDecoration;
  option->decorationSize = QSize(side, side);
  if (markOf(index) == OrderMark::Missing) {
    for (const auto group : {QPalette::Active, QPalette::Inactive})
      option->palette.setColor(group, QPalette::Text, faintColour(option->palette, group));
  }
}

QSize OrderMarkDelegate::sizeHint(const QStyleOptionViewItem& option,
                                  const QModelIndex& index) const {
  const QSize size = QStyledItemDelegate::sizeHint(option, index);
  // A little air between the lines keeps the marks apart.
  return {size.width(), std::max(size.height(), option.fontMetrics.height() * 5 / 4)};
}

void OrderMarkDelegate::paint(QPainter* painter, const QStyleOptionViewItem& option,
                              const QModelIndex& index) const {
  QStyledItemDelegate::paint(painter, option, index);
  QStyleOptionViewItem item = option;
  initStyleOption(&item, index);
  const QStyle* style = item.widget != nullptr ? item.widget->style() : QApplication::style();
  const QRectF place = style->subElementRect(QStyle::SE_ItemViewItemDecoration, &item, item.widget);
  const OrderMark mark = markOf(index);
  paintMark(*painter, mark, place, coloursOf(mark, item));
}

}  // namespace orb::ui
