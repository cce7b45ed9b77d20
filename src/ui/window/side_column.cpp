#include "ui/window/side_column.h"

#include <QEvent>
#include <QScrollBar>

#include <algorithm>

namespace orb::ui {
namespace {

// Pixels.
constexpr int ColumnGap = 6;
/// Of the column's text, on the lowest of screens.
constexpr int LeastLines = 12;

}  // namespace

SideColumn::SideColumn(QWidget* powers, QWidget* brief, const std::vector<QWidget*>& panels,
                       QWidget* facts)
    : m_brief(brief),
      m_shares(new SharedRoom(Qt::Vertical, SharedRoom::Unit::PerMille, 0)),
      m_place(new QWidget),
      m_panels(new QVBoxLayout(m_place)) {
  m_panels->setContentsMargins({});
  // From top to bottom: the Tab key goes from control to control as they were added.
  for (QWidget* panel : panels) {
    panel->hide();
    m_panels->addWidget(panel);
  }
  m_shares->addWidget(m_place);
  m_shares->addWidget(facts);
  setFrameShape(QFrame::NoFrame);
  setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  setFocusPolicy(Qt::NoFocus);
  auto* content = new QWidget;
  auto* column = new QVBoxLayout(content);
  column->setContentsMargins({});
  column->setSpacing(ColumnGap);
  column->addWidget(powers);
  column->addWidget(brief);
  column->addWidget(m_shares, 1);
  setWidget(content);
  setWidgetResizable(true);
  content->setAutoFillBackground(false);
  viewport()->setAutoFillBackground(false);
}

QSize SideColumn::minimumSizeHint() const {
  const int whole = widget()->minimumSizeHint().height();
  const bool scrolls = height() < whole;
  return {
      widget()->minimumSizeHint().width() + (scrolls ? verticalScrollBar()->sizeHint().width() : 0),
      std::min(whole, LeastLines * fontMetrics().lineSpacing())};
}

/// Its least width hangs on its height and on what stands in it.
bool SideColumn::event(QEvent* event) {
  const bool handled = QScrollArea::event(event);
  if (event->type() == QEvent::Resize || event->type() == QEvent::LayoutRequest) updateGeometry();
  return handled;
}

/// Never two panels at once: the window would grow to hold them.
void SideColumn::showInstead(QWidget* shown) {
  m_brief->setVisible(shown == m_brief);
  for (int i = 0; i < m_panels->count(); ++i) {
    if (m_panels->itemAt(i)->widget() != shown) m_panels->itemAt(i)->widget()->hide();
  }
  const bool takesPlace = shown != nullptr && shown != m_brief;
  m_place->setVisible(takesPlace);
  if (takesPlace) shown->show();
  // A panel aligns its columns when it is shown, which its layout does not pass on to a view that
  // scrolls.
  updateGeometry();
}

}  // namespace orb::ui
