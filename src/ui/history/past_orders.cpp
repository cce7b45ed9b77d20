#include "ui/history/past_orders.h"

#include "orders/order_list.h"
#include "ui/widgets/controls.h"

#include <QVBoxLayout>

namespace orb::ui {

PastOrders::PastOrders(const Desk& desk, QWidget* parent)
    : QWidget(parent), m_desk(desk), m_list(new QListWidget) {
  setObjectName(QStringLiteral("fraPastOrders"));
  m_list->setObjectName(QStringLiteral("lstPastOrders"));
  m_list->setAccessibleName(tr("Orders of this stage"));
  m_list->setWordWrap(true);
  auto* column = new QVBoxLayout(this);
  column->setContentsMargins({});
  column->addWidget(newHeading(tr("Orders of this stage")));
  column->addWidget(m_list, 1);
  hide();
  connect(&m_desk, &Desk::trialChanged, this, &PastOrders::showOrders);
}

void PastOrders::showOrders() {
  if (m_desk.past()) showTexts(*m_list, orders::StageList(m_desk.past()->situation.Game));
}

}  // namespace orb::ui
