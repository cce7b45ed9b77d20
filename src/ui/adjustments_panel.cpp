#include "ui/adjustments_panel.h"

namespace orb::ui {

AdjustmentsPanel::AdjustmentsPanel(Desk& desk, QWidget* parent)
    : OrderEntryPanel(desk, &model::GameState::AdjustmentsList,
                      {.panel = QStringLiteral("fraAdjustments"),
                       .list = QStringLiteral("lstAdjustments"),
                       .text = QStringLiteral("txtAdjustment"),
                       .ok = QStringLiteral("butAdjustmentOK"),
                       .remove = QStringLiteral("butAdjustmentDelete"),
                       .resolve = QStringLiteral("butAdjustmentsResolve"),
                       .heading = tr("Adjustments"),
                       .example = tr("ENG build F(Lon)")},
                      parent) {}

}  // namespace orb::ui
