#pragma once

#include "ui/widgets/order_marks.h"

#include <QFontMetrics>
#include <QString>

namespace orb::ui {

/// Draws lines with their marks; what of a long line comes below is indented, so that it does not
/// look like a line of its own. For views that wrap their lines.
class HangingDelegate : public OrderMarkDelegate {
  Q_OBJECT

 public:
  using OrderMarkDelegate::OrderMarkDelegate;

 protected:
  void initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const override;
};

/// The text broken at blanks into lines of at most that width in pixels, all but the first
/// indented.
QString hung(const QString& text, const QFontMetrics& metrics, int width);

}  // namespace orb::ui
