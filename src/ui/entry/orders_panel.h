#pragma once

#include "orders/click_entry.h"
#include "ui/entry/order_entry_panel.h"

namespace orb::ui {

/// The orders of the moves stage. Several clicks make one order: what a click means depends on what
/// the line in the box already says.
class OrdersPanel : public OrderEntryPanel {
  Q_OBJECT

 public:
  explicit OrdersPanel(Desk& desk, QWidget* parent = nullptr);

 protected:
  /// Picks a unit or, after that, where it goes; Shift picks a supporter, Ctrl a convoying fleet.
  void writeClick(const MapSpot& at) override;

  /// The next click picks a unit, whatever was clicked before.
  void beginLine() override;
  void beginOrder(const session::OpenOrder& open) override;

 private:
  void addCommands();

  /// What has been clicked of the line so far.
  orders::OrderEntry m_entry;  ///< its text is up to date only during a click
};

}  // namespace orb::ui
