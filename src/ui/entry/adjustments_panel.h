#pragma once

#include "ui/entry/order_entry_panel.h"

#include <QRadioButton>

#include <string_view>

namespace orb::ui {

/// The orders to build and to disband, below the count of centres and units. A click writes a whole
/// order at once, so what is built is chosen beforehand: army or fleet.
class AdjustmentsPanel : public OrderEntryPanel {
  Q_OBJECT

 public:
  explicit AdjustmentsPanel(Desk& desk, QWidget* parent = nullptr);

 protected:
  /// Writes the order to disband the unit there, or to build one of the chosen type.
  void writeClick(const MapSpot& at) override;

 private:
  /// A choice of what the next click builds; it also changes the line in the box.
  QRadioButton* addTypeOption(const QString& name, const QString& caption,
                              std::string_view unitType);

  void chooseType(std::string_view unitType);

  QRadioButton* m_fleet;
};

}  // namespace orb::ui
