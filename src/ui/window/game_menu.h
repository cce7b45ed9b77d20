#pragma once

#include "ui/session/desk.h"

#include <QMenu>

#include <utility>
#include <vector>

namespace orb::ui {

class LettersCommands;

/// The stage, what is edited in its place, and the commands on the season.
///
/// The entries of the stages show a state rather than choose one: a stage ends by being resolved.
class GameMenu : public QMenu {
  Q_OBJECT

 public:
  GameMenu(Desk& desk, LettersCommands& letters, QWidget* parent);

 private:
  // Entries with a check mark, in the order in which they are added.
  void addStage(const QString& name, const QString& caption, model::Stage stage);
  void addEditing(const QString& name, const QString& caption, session::Editing editing);
  void addEditSteps();
  void addRules();
  void addLetters(LettersCommands& letters);
  void showState();

  Desk& m_desk;
  std::vector<std::pair<QAction*, model::Stage>> m_stages;
  std::vector<std::pair<QAction*, session::Editing>> m_editings;
  QAction* m_undoEdit = nullptr;
  QAction* m_redoEdit = nullptr;
  QAction* m_undo = nullptr;
  QAction* m_tryOut = nullptr;
  std::vector<std::pair<QAction*, session::Rules>> m_rules;
  QAction* m_compare = nullptr;
};

}  // namespace orb::ui
