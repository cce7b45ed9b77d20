#include "ui/retreats_panel.h"

namespace orb::ui {

RetreatsPanel::RetreatsPanel(Desk& desk, QWidget* parent)
    : OrderEntryPanel(desk, &model::GameState::RetreatsList,
                      {.panel = QStringLiteral("fraRetreats"),
                       .list = QStringLiteral("lstRetreats"),
                       .text = QStringLiteral("txtRetreat"),
                       .ok = QStringLiteral("butRetreatOK"),
                       .remove = QStringLiteral("butRetreatDelete"),
                       .resolve = QStringLiteral("butRetreatsResolve"),
                       .heading = tr("Retreats"),
                       .example = tr("ENG A(Lvp) retreat Yor")},
                      parent) {}

}  // namespace orb::ui
