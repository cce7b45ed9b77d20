#pragma once

#include "model/game_state.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDialog>

#include <string>

namespace orb::ui {

/// The properties of a province: its owner, when it is a supply centre, and whether it is
/// contested, so that no unit may retreat to it. It only asks; the panel makes the change.
class ProvinceDialog : public QDialog {
  Q_OBJECT

 public:
  /// The game must outlive the dialog; the province is a row of its map.
  ProvinceDialog(const model::GameState& game, int province, QWidget* parent);

  /// The abbreviation of the chosen power; an owner that is no power stays as it is.
  std::string owner() const;

  bool contested() const { return m_contested->isChecked(); }

 private:
  /// The power whose home the province is, which cannot be changed.
  QString homeText() const;
  void fillIn();

  const model::GameState& m_game;
  int m_province;
  QComboBox* m_owner;
  QCheckBox* m_contested;
};

}  // namespace orb::ui
