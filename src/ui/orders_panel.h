#pragma once

#include "ui/order_entry_panel.h"

namespace orb::ui {

/// The orders of the moves stage.
class OrdersPanel : public OrderEntryPanel {
  Q_OBJECT

 public:
  explicit OrdersPanel(Desk& desk, QWidget* parent = nullptr);
};

}  // namespace orb::ui
