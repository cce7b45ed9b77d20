#include "ui/entry/power_strip.h"

#include "colour/qt/colours.h"
#include "text/qt/text_codec.h"

#include <QHBoxLayout>
#include <QShortcut>

#include <utility>

namespace orb::ui {

using session::Changes;

PowerStrip::PowerStrip(const Desk& desk, QWidget* parent)
    : QWidget(parent), m_desk(desk), m_shownStage(desk.game().Stage) {
  setObjectName(QStringLiteral("fraPowers"));
  setAccessibleName(tr("Powers"));
  auto* row = new QHBoxLayout(this);
  row->setContentsMargins({});
  row->setSpacing(2);
  for (int power = 1; power <= m_desk.game().Countries.Count(); ++power)
    addCell(power);
  m_desk.whenChanged(Changes::Powers, this, &PowerStrip::showColours);
  m_desk.whenChanged(Changes::Game, this, &PowerStrip::showAll);
  m_desk.whenChanged(Changes::Season | Changes::Editing, this, &PowerStrip::showStage);
  m_desk.whenChanged(Changes::Season | Changes::Position | Changes::Orders | Changes::Rules, this,
                     &PowerStrip::showStandings);
  showColours();
  showStage();
  showStandings();
}

void PowerStrip::addCell(int power) {
  const model::Country& country = m_desk.game().Countries[power];
  const QString name = text::ToQString(country.Name);
  auto* cell = new PowerCell(name);
  cell->setObjectName(QStringLiteral("butPower") + text::ToQString(country.Abbreviation));
  // Reached with the Tab key, but a click leaves the keyboard where orders are typed.
  cell->setFocusPolicy(Qt::TabFocus);
  const QKeySequence keys(Qt::ALT | static_cast<Qt::Key>(Qt::Key_0 + power));
  cell->setAccessibleDescription(tr("Shows the lines of %1 alone, or those of all again (%2)")
                                     .arg(name, keys.toString(QKeySequence::NativeText)));
  layout()->addWidget(cell);
  m_cells.push_back(cell);
  connect(cell, &QPushButton::clicked, this, [this, power](bool on) { choose(on ? power : 0); });
  connect(new QShortcut(keys, this), &QShortcut::activated, cell, &QPushButton::click);
}

void PowerStrip::choose(int power) {
  for (std::size_t i = 0; i < m_cells.size(); ++i)
    m_cells[i]->setChecked(static_cast<int>(i) + 1 == power);
  if (std::exchange(m_power, power) != power) emit powerChosen(power);
}

void PowerStrip::lead(OrderEntryPanel& panel) {
  connect(this, &PowerStrip::powerChosen, &panel, &OrderEntryPanel::showOnly);
  connect(&panel, &OrderEntryPanel::otherPowerSelected, this, [this] { choose(0); });
}

void PowerStrip::showColours() {
  for (std::size_t i = 0; i < m_cells.size(); ++i) {
    const model::Country& country = m_desk.game().Countries[static_cast<int>(i) + 1];
    m_cells[i]->setColours(colour::ToQColor(country.Colour), colour::ToQColor(country.TextColour));
  }
}

void PowerStrip::showStandings() {
  const session::Standings standings = session::StandingsOf(m_desk.now());
  for (std::size_t i = 0; i < m_cells.size(); ++i)
    m_cells[i]->showStanding(standings.Powers[static_cast<int>(i) + 1], m_desk.game().Stage);
}

void PowerStrip::showStage() {
  const model::GameState& game = m_desk.game();
  if (std::exchange(m_shownStage, game.Stage) != game.Stage) showAll();
  setVisible(session::TakesOrders(game) && m_desk.now().Editing == session::Editing::None);
}

}  // namespace orb::ui
