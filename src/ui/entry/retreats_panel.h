#pragma once

#include "ui/entry/order_entry_panel.h"

namespace orb::ui {

/// The orders of dislodged units, which retreat or disband.
class RetreatsPanel : public OrderEntryPanel {
  Q_OBJECT

 public:
  explicit RetreatsPanel(Desk& desk, QWidget* parent = nullptr);

 protected:
  /// Picks a dislodged unit and, after that, where it retreats to or that it disbands.
  void writeClick(const MapSpot& at) override;
};

}  // namespace orb::ui
