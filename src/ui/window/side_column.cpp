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

SideColumn::SideColumn(QWidget* powers, QWidget* brief, QWidget* facts)
    : m_brief(brief),
      m_shares(new SharedRoom(Qt::Vertical, SharedRoom::Unit::PerMille, 0)),
      m_place(new QWidget),
      m_panels(new QVBoxLayout(m_place)) {
  m_panels->setContentsMargins({});
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

/// Its least width hangs on its height.
bool SideColumn::event(QEvent* event) {
  if (event->type() == QEvent::Resize) updateGeometry();
  return QScrollArea::event(event);
}

bool SideColumn::eventFilter(QObject* watched, QEvent* event) {
  // Nobody but the content's own layout knows how much room it needs.
  if (event->type() == QEvent::LayoutRequest) updateGeometry();
  return QScrollArea::eventFilter(watched, event);
}

void SideColumn::addPanel(QWidget* panel) {
  panel->hide();
  m_panels->addWidget(panel);
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
}

}  // namespace orb::ui
