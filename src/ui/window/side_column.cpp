#include "ui/window/side_column.h"

namespace orb::ui {
namespace {

// Pixels.
constexpr int ColumnGap = 6;

}  // namespace

SideColumn::SideColumn(QWidget* powers, QWidget* brief, QWidget* facts)
    : m_brief(brief),
      m_shares(new SharedRoom(Qt::Vertical, SharedRoom::Unit::PerMille, 0)),
      m_place(new QWidget),
      m_panels(new QVBoxLayout(m_place)) {
  m_panels->setContentsMargins({});
  m_shares->addWidget(m_place);
  m_shares->addWidget(facts);
  auto* column = new QVBoxLayout(this);
  column->setContentsMargins({});
  column->setSpacing(ColumnGap);
  column->addWidget(powers);
  column->addWidget(brief);
  column->addWidget(m_shares, 1);
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
