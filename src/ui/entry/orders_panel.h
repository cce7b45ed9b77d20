#pragma once

#include "orders/click_entry.h"
#include "ui/entry/order_entry_panel.h"

namespace orb::ui {

/// The orders of the moves stage.
class OrdersPanel : public OrderEntryPanel {
  Q_OBJECT

 public:
  explicit OrdersPanel(Desk& desk, QWidget* parent = nullptr);

  /// Picks a unit or, after that, where it goes; Shift picks a supporter, Ctrl a convoying fleet.
  void mapClicked(const MapSpot& at) override;

 protected:
  void beginLine() override;

 private:
  void addCommands();

  orders::OrderEntry m_entry;  ///< its text is up to date only during a click
};

}  // namespace orb::ui
