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

/// The properties of a unit. While there cannot be such a unit it says why.
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
  void offerPlaces();
  void check();

  const model::GameState& m_game;
  model::Unit m_shown;
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
