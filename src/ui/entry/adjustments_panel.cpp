#include "ui/entry/adjustments_panel.h"

#include "orders/click_entry.h"
#include "text/qt/text_codec.h"
#include "ui/entry/adjustment_counts.h"

namespace orb::ui {

AdjustmentsPanel::AdjustmentsPanel(Desk& desk, QWidget* parent)
    : OrderEntryPanel(desk, model::Stage::Adjustments, &model::GameState::AdjustmentsList,
                      {.panel = QStringLiteral("fraAdjustments"),
                       .list = QStringLiteral("lstAdjustments"),
                       .missing = QStringLiteral("lblAdjustmentsMissing"),
                       .text = QStringLiteral("txtAdjustment"),
                       .ok = QStringLiteral("butAdjustmentOK"),
                       .cancel = QStringLiteral("butAdjustmentCancel"),
                       .remove = QStringLiteral("butAdjustmentDelete"),
                       .help = QStringLiteral("butAdjustmentsHelp"),
                       .resolve = QStringLiteral("butAdjustmentsResolve"),
                       .heading = tr("Adjustments"),
                       .example = tr("ENG build F(Lon)"),
                       .helpTopic = tr("Adjustments"),
                       .resolveTip = tr("Carries out the builds and disbands of all powers")},
                      parent) {
  // Whoever orders builds needs to know first how many there are.
  addBelowHeading(new AdjustmentCounts(desk));
  addCommand({QStringLiteral("butAdjustmentBuild"), tr("&Build"),
              tr("The power builds a unit in a home centre"), QStringLiteral(" build ")});
  addCommand({QStringLiteral("butAdjustmentDisband"), tr("D&isband"),
              tr("The power removes a unit"), QStringLiteral(" disband ")});
  addTypeOption(QStringLiteral("optAdjustmentArmy"), tr("&Army"), "A")->setChecked(true);
  m_fleet = addTypeOption(QStringLiteral("optAdjustmentFleet"), tr("F&leet"), "F");
}

QRadioButton* AdjustmentsPanel::addTypeOption(const QString& name, const QString& caption,
                                              std::string_view unitType) {
  auto* option = new QRadioButton(caption);
  option->setObjectName(name);
  option->setToolTip(
      tr("What the order builds; writes %1( into it")
          .arg(QLatin1String(unitType.data(), static_cast<qsizetype>(unitType.size()))));
  addToCommands(option);
  connect(option, &QRadioButton::clicked, this, [this, unitType] { chooseType(unitType); });
  return option;
}

void AdjustmentsPanel::chooseType(std::string_view unitType) {
  const model::Map& map = *game().Map;
  const std::string typed = orders::WithUnitType(map, line(), unitType);
  write(typed);
  const std::string coasts = orders::CoastsToChoose(map, typed);
  if (!coasts.empty()) {
    emit statusText(
        tr("Which coast: %1? Type it, or click it on the map.").arg(text::ToQString(coasts)));
  }
}

void AdjustmentsPanel::writeClick(const MapSpot& at) {
  const std::string_view unitType = m_fleet->isChecked() ? "F" : "A";
  const std::string location = locationAt(at, unitType);
  // A fleet's click may mean a coast, so the type decides the location too.
  if (!location.empty()) {
    write(orders::ClickAdjustment(game(), line(), location, unitType));
  }
}

}  // namespace orb::ui
