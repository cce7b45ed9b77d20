#pragma once

#include "ui/editing/editing_panel.h"

#include <QButtonGroup>

namespace orb::ui {

/// Gives supply centres to powers and opens the properties of provinces. A power is chosen once,
/// and every click on a centre gives it to that power, so that a whole position is quickly set up.
class EditProvincesPanel : public EditingPanel {
  Q_OBJECT

 public:
  EditProvincesPanel(Desk& desk, MapPicture& map, QWidget* parent = nullptr);

  void mapClicked(const MapSpot& at) override;
  bool mapDoubleClicked(const MapSpot& at) override;

 protected:
  std::vector<Entry> entries() const override;
  void openProperties() override;
  void selectionChanged() override;
  void paintOver(QPainter& painter, render::Surface& surface) override;
  void showEvent(QShowEvent* event) override;

 private:
  /// The choice of the power that receives what is clicked.
  QWidget* newPowers();
  /// Shows the powers' colours, which may have been changed since the panel was last visible.
  void colourPowers();
  /// Gives the selected centre to the chosen power, in one step.
  void give();

  QButtonGroup* m_powers;  ///< by the power's row; 0: neutral
  QPushButton* m_give;
  QPushButton* m_properties;
  int m_given = 0;  ///< row of the province that the last click gave to another power; 0: none
};

}  // namespace orb::ui
