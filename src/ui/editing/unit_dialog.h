#pragma once

#include "model/game_state.h"
#include "ui/widgets/place_box.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDialog>
#include <QLabel>
#include <QPushButton>
#include <QRadioButton>

namespace orb::ui {

/// The properties of a unit, to add one or to change one. As long as there cannot be such a unit
/// the dialog says why, and OK is disabled.
class UnitDialog : public QDialog {
  Q_OBJECT

 public:
  /// Shows a unit to be put in place of that one in the game; 0: to be added. The game must outlive
  /// the dialog.
  UnitDialog(const model::GameState& game, model::Unit shown, int replaced, QWidget* parent);

  /// The unit with the properties that are set.
  model::Unit unit() const;

 private:
  void layOut();
  void fillIn();
  std::string unitType() const;
  /// Offers the locations in which a unit of the chosen type can stand.
  void offerPlaces();
  /// Shows what is wrong with the unit as it is set now, if anything.
  void check();

  const model::GameState& m_game;
  /// The unit as it came in; what the dialog does not show stays as it is there.
  model::Unit m_shown;
  /// Row of the unit that gives way, so that it does not stand in its own way; 0: none.
  int m_replaced;
  QComboBox* m_power;
  QRadioButton* m_army;
  QRadioButton* m_fleet;
  PlaceBox* m_location;
  QCheckBox* m_dislodged;
  PlaceBox* m_from;
  PlaceBox* m_previous;
  QLabel* m_fault;
  QPushButton* m_ok = nullptr;
};

}  // namespace orb::ui
