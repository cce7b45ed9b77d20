#pragma once

#include "ui/entry/order_entry_panel.h"
#include "ui/entry/power_cell.h"
#include "ui/session/desk.h"

#include <QWidget>

#include <vector>

namespace orb::ui {

/// Where each power stands, in a row of seven cells. One of them can be chosen: then the window
/// shows its lines alone. Hidden in a stage without orders and while something is edited.
class PowerStrip : public QWidget {
  Q_OBJECT

 public:
  explicit PowerStrip(const Desk& desk, QWidget* parent = nullptr);

  /// Chooses a power; 0: all.
  void choose(int power);

  /// The panel shows what is chosen here, and all again when it needs a line of another power.
  void lead(OrderEntryPanel& panel);

 signals:
  void powerChosen(int power);

 private:
  void addCell(int power);
  void showColours();
  void showStandings();
  void showAll() { choose(0); }
  /// Another stage begins with all powers, as another game and season do.
  void showStage();

  const Desk& m_desk;
  std::vector<PowerCell*> m_cells;
  int m_power = 0;
  model::Stage m_shownStage;
};

}  // namespace orb::ui
