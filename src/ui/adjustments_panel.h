#pragma once

#include "ui/order_entry_panel.h"

namespace orb::ui {

/// The orders to build and to disband.
class AdjustmentsPanel : public OrderEntryPanel {
  Q_OBJECT

 public:
  explicit AdjustmentsPanel(Desk& desk, QWidget* parent = nullptr);
};

}  // namespace orb::ui
