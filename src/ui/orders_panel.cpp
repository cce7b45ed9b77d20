#include "ui/orders_panel.h"

namespace orb::ui {

OrdersPanel::OrdersPanel(Desk& desk, QWidget* parent)
    : OrderEntryPanel(desk, &model::GameState::OrdersList,
                      {.panel = QStringLiteral("fraOrders"),
                       .list = QStringLiteral("lstOrders"),
                       .text = QStringLiteral("txtOrder"),
                       .ok = QStringLiteral("butOrderOK"),
                       .remove = QStringLiteral("butOrderDelete"),
                       .resolve = QStringLiteral("butOrdersResolve"),
                       .heading = tr("Orders"),
                       .example = tr("ENG A(Lvp) - Yor")},
                      parent) {}

}  // namespace orb::ui
