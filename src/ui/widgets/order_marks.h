#pragma once

#include <QStyledItemDelegate>

namespace orb::ui {

/// What is known about a line of orders before it is resolved.
enum class OrderMark : std::uint8_t {
  None,
  Passes,     ///< a thin tick
  Doubtful,   ///< a triangle with an exclamation mark
  Otherwise,  ///< an inequality sign: the other rules decide or read it otherwise
  Stopped,    ///< a filled disc with a bar: the line stopped the resolution or is not understood
};

/// Where an item of a list keeps its OrderMark, as an int.
constexpr int OrderMarkRole = Qt::UserRole;

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
