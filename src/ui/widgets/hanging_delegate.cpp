#include "ui/widgets/hanging_delegate.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QFontMetrics>
#include <QStyle>

#include <algorithm>

namespace orb::ui {
namespace {

/// Further in than the two columns that lines of the report begin with.
const QString Indent(6, QLatin1Char(' '));

/// What the style leaves of an item's width to its text, in pixels.
int textWidth(const QStyleOptionViewItem& item) {
  const auto* view = qobject_cast<const QAbstractItemView*>(item.widget);
  if (view == nullptr) return item.rect.width();
  const int margin = view->style()->pixelMetric(QStyle::PM_FocusFrameHMargin, &item, view) + 1;
  return view->viewport()->width() - item.decorationSize.width() - 4 * margin;
}

}  // namespace

void HangingDelegate::initStyleOption(QStyleOptionViewItem* option,
                                      const QModelIndex& index) const {
  OrderMarkDelegate::initStyleOption(option, index);
  option->text = hung(option->text, option->fontMetrics, textWidth(*option));
}

QString hung(const QString& text, const QFontMetrics& metrics, int width) {
  const QLatin1Char blank(' ');
  QString broken;
  QString rest = text;
  while (metrics.horizontalAdvance(rest) > width) {
    const auto begin =
        std::find_if(rest.cbegin(), rest.cend(), [&](QChar c) { return c != blank; });
    // The first word stays, however long it is.
    qsizetype end = rest.indexOf(blank, begin - rest.cbegin());
    if (end < 0) break;
    for (qsizetype next = end; next >= 0 && metrics.horizontalAdvance(rest.left(next)) <= width;
         next = rest.indexOf(blank, next + 1)) {
      end = next;
    }
    const QString below = rest.mid(end).trimmed();
    if (below.isEmpty()) break;
    broken += rest.left(end) + QChar(QChar::LineSeparator);
    rest = Indent + below;
  }
  return broken + rest;
}

}  // namespace orb::ui
