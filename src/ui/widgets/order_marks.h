#pragma once

#include <QColor>
#include <QPainter>
#include <QPalette>
#include <QRectF>
#include <QStyledItemDelegate>

namespace orb::ui {

/// What is known about a line of orders before it is resolved.
enum class OrderMark : std::uint8_t {
  None,
  Missing,    ///< an empty circle: it is still to be written, and its text is faint
  Passes,     ///< a thin tick
  Doubtful,   ///< a triangle with an exclamation mark
  Otherwise,  ///< an inequality sign: the other rules decide or read it otherwise
  Stopped,    ///< a filled disc with a bar: the line stopped the resolution or is not understood
};

/// Where an item of a list keeps its OrderMark, as an int.
constexpr int OrderMarkRole = Qt::UserRole;

/// What a mark is painted with.
struct MarkColours {
  QColor shape;
  QColor sign;  ///< on the shape
};

/// Colours for the mark that can be made out on the palette's base.
MarkColours markColours(OrderMark mark, const QPalette& palette, QPalette::ColorGroup group);

/// Paints a mark into a square.
void paintMark(QPainter& painter, OrderMark mark, const QRectF& place, const MarkColours& colours);

/// For text that tells of what is not there yet: between text and base, and legible on it.
QColor faintColour(const QPalette& palette, QPalette::ColorGroup group = QPalette::Active);

/// Draws a list's items with their marks in front. The marks differ in form as well as in colour,
/// and every item keeps room for one, so that the texts stay aligned.
class OrderMarkDelegate : public QStyledItemDelegate {
  Q_OBJECT

 public:
  using QStyledItemDelegate::QStyledItemDelegate;

  void paint(QPainter* painter, const QStyleOptionViewItem& option,
             const QModelIndex& index) const override;
  QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override;

 protected:
  void initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const override;
};

}  // namespace orb::ui
