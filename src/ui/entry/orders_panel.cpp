#include "ui/entry/orders_panel.h"

#include "model/place.h"

namespace orb::ui {

OrdersPanel::OrdersPanel(Desk& desk, QWidget* parent)
    : OrderEntryPanel(desk, model::Stage::Moves, &model::GameState::OrdersList,
                      {.panel = QStringLiteral("fraOrders"),
                       .list = QStringLiteral("lstOrders"),
                       .missing = QStringLiteral("lblOrdersMissing"),
                       .text = QStringLiteral("txtOrder"),
                       .ok = QStringLiteral("butOrderOK"),
                       .cancel = QStringLiteral("butOrderCancel"),
                       .remove = QStringLiteral("butOrderDelete"),
                       .help = QStringLiteral("butOrdersHelp"),
                       .resolve = QStringLiteral("butOrdersResolve"),
                       .heading = tr("Orders"),
                       .example = tr("ENG A(Lvp) - Yor"),
                       .helpTopic = tr("Entering orders"),
                       .resolveTip = tr("Carries out the orders of all powers")},
                      parent) {
  addCommands();
}

void OrdersPanel::addCommands() {
  const auto* move = addCommand({QStringLiteral("butOrderMove"), tr("Mo&ve"),
                                 tr("The unit moves: - and where to"), QStringLiteral("- ")});
  addCommand({QStringLiteral("butOrderHold"), tr("Ho&ld"), tr("The unit stays where it is"),
              QStringLiteral("hold ")});
  const auto* support =
      addCommand({QStringLiteral("butOrderSupport"), tr("&Support"),
                  tr("The unit supports another: S and that unit's order"), QStringLiteral("S ")});
  const auto* convoy =
      addCommand({QStringLiteral("butOrderConvoy"), tr("Convo&y"),
                  tr("The fleet convoys an army: C and that army's move"), QStringLiteral("C ")});
  // After "S" or "C" another unit is wanted, after "-" a place, as if it had been clicked together.
  connect(move, &QPushButton::clicked, this, [this] { m_entry.UnitExpected = false; });
  for (const QPushButton* command : {support, convoy})
    connect(command, &QPushButton::clicked, this, [this] { m_entry.UnitExpected = true; });
}

void OrdersPanel::writeClick(const MapSpot& at) {
  // The line may have been typed or changed by hand since the last click.
  m_entry.Text = line();
  std::string location = locationAt(at, orders::LastUnitType(m_entry.Text));
  if (location.empty()) return;
  // A fleet's own place is meant even where another coast of it is nearer.
  const bool own = model::SamePlace(location, m_entry.LastUnitLocation);
  if (!m_entry.UnitExpected && own) location = m_entry.LastUnitLocation;
  m_entry = orders::ClickOrder(game(), m_entry, location,
                               {.Shift = at.modifiers.testFlag(Qt::ShiftModifier),
                                .Ctrl = at.modifiers.testFlag(Qt::ControlModifier)});
  write(m_entry.Text);
}

void OrdersPanel::beginLine() {
  m_entry = {};
}

void OrdersPanel::beginOrder(const session::OpenOrder& open) {
  // A click that follows tells where the unit goes.
  m_entry = orders::ClickOrder(game(), {}, open.Location, {});
  write(m_entry.Text);
}

}  // namespace orb::ui
