#include "ui/entry/retreats_panel.h"

#include "orders/click_entry.h"

namespace orb::ui {

RetreatsPanel::RetreatsPanel(Desk& desk, QWidget* parent)
    : OrderEntryPanel(desk, model::Stage::Retreats, &model::GameState::RetreatsList,
                      {.panel = QStringLiteral("fraRetreats"),
                       .list = QStringLiteral("lstRetreats"),
                       .missing = QStringLiteral("lblRetreatsMissing"),
                       .text = QStringLiteral("txtRetreat"),
                       .ok = QStringLiteral("butRetreatOK"),
                       .cancel = QStringLiteral("butRetreatCancel"),
                       .remove = QStringLiteral("butRetreatDelete"),
                       .help = QStringLiteral("butRetreatsHelp"),
                       .resolve = QStringLiteral("butRetreatsResolve"),
                       .heading = tr("Retreats"),
                       .example = tr("ENG A(Lvp) retreat Yor"),
                       .helpTopic = tr("Retreats"),
                       .resolveTip = tr("Carries out the retreats of all powers")},
                      parent) {
  addCommand({QStringLiteral("butRetreatRetreat"), tr("Retre&at"),
              tr("The unit retreats: where to follows"), QStringLiteral("retreat ")});
  addCommand({QStringLiteral("butRetreatDisband"), tr("Dis&band"), tr("The unit is removed"),
              QStringLiteral("disband ")});
}

void RetreatsPanel::writeClick(const MapSpot& at) {
  // What was typed so far tells of which unit the coast is to be chosen.
  const std::string text = line();
  const std::string location = locationAt(at, orders::LastUnitType(text));
  if (!location.empty()) write(orders::ClickRetreat(game(), text, location));
}

}  // namespace orb::ui
