#pragma once

#include "model/season_edit.h"
#include "ui/session/desk.h"
#include "ui/widgets/free_text_box.h"
#include "ui/widgets/text_validator.h"

#include <QComboBox>
#include <QDialog>
#include <QLabel>
#include <QLineEdit>
#include <QSpinBox>

#include <array>

namespace orb::ui {

/// Asks for the season's facts: title, time, stage, players and free text. The boxes accept only
/// what a game file can hold; what is left out of a typed or pasted text is said below.
class SeasonDialog : public QDialog {
  Q_OBJECT

 public:
  /// The game must outlive the dialog.
  explicit SeasonDialog(const model::GameState& game, QWidget* parent = nullptr);

  /// What is filled in now.
  model::SeasonFacts facts() const;

 private:
  void nameControls();
  QLayout* newFactsColumn();
  QLayout* newTextColumn();
  void showFacts();
  void connectControls();
  /// Says what the chosen stage would mean for the game, before anything is changed.
  void tellStage();
  /// Shows how many lines the free text has, and how many it may have.
  void countLines();
  /// Shows a remark below the boxes; the next key clears it.
  void hint(const QString& text);

  const model::GameState& m_game;
  QLineEdit* m_title;
  QComboBox* m_season;
  QSpinBox* m_year;
  QComboBox* m_stage;
  QLabel* m_stageNote;
  std::array<QLineEdit*, model::CountryCount> m_players{};
  FreeTextBox* m_text;
  QLabel* m_lineCount;
  QLabel* m_hint;
  TextValidator* m_validator;
};

/// Lets the user edit the game's season. Cancel changes nothing.
void editSeason(Desk& desk, QWidget* parent);

}  // namespace orb::ui
