#include "ui/window/game_menu.h"

#include "ui/editing/colours_dialog.h"
#include "ui/editing/season_dialog.h"
#include "ui/letters/letters_commands.h"
#include "ui/widgets/controls.h"

#include <QActionGroup>

namespace orb::ui {

using session::Editing;

GameMenu::GameMenu(Desk& desk, LettersCommands& letters, QWidget* parent)
    : QMenu(tr("&Game"), parent), m_desk(desk) {
  setObjectName(QStringLiteral("mnuGame"));
  addStage(QStringLiteral("mnuGameEnterOrders"), tr("Enter &orders"), model::Stage::Moves);
  addStage(QStringLiteral("mnuGameEnterRetreats"), tr("Enter &retreats"), model::Stage::Retreats);
  addStage(QStringLiteral("mnuGameEnterAdjustments"), tr("Enter &adjustments"),
           model::Stage::Adjustments);
  addStage(QStringLiteral("mnuGameSeasonFinished"), tr("Season &finished"), model::Stage::Finished);
  addSeparator();
  addEditing(QStringLiteral("mnuGameEditUnits"), tr("Edit &units"), Editing::Units);
  addEditing(QStringLiteral("mnuGameEditProvinces"), tr("Edit &provinces"), Editing::Provinces);
  connect(newEntry(*this, QStringLiteral("mnuGameEditSeason"), tr("Edit &season...")),
          &QAction::triggered, this, [this] { editSeason(m_desk, parentWidget()); });
  connect(newEntry(*this, QStringLiteral("mnuGameColours"), tr("Unit co&lours...")),
          &QAction::triggered, this, [this] { editColours(m_desk, parentWidget()); });
  addEditSteps();
  addSeparator();
  m_tryOut = newEntry(*this, QStringLiteral("mnuGameTryOut"), tr("Tr&y out"), Qt::CTRL | Qt::Key_T);
  m_tryOut->setCheckable(true);
  connect(m_tryOut, &QAction::triggered, this, [this](bool on) {
    on ? m_desk.tryOut() : m_desk.endTrial();
    showState();
  });
  addRules();
  addSeparator();
  addLetters(letters);
  addSeparator();
  m_undo = newEntry(*this, QStringLiteral("mnuGameUndo"), tr("U&ndo season"));
  connect(m_undo, &QAction::triggered, &desk, &Desk::undoSeason);
  m_desk.whenChanged(session::Changes::Season | session::Changes::Editing | session::Changes::Rules,
                     this, &GameMenu::showState);
  connect(&m_desk, &Desk::viewChanged, this, &GameMenu::showState);
  connect(&m_desk, &Desk::trialChanged, this, &GameMenu::showState);
  showState();
}

/// The stage entries show the stage. Choosing one only brings back its panel.
void GameMenu::addStage(const QString& name, const QString& caption, model::Stage stage) {
  QAction* entry = newEntry(*this, name, caption);
  entry->setCheckable(true);
  m_stages.emplace_back(entry, stage);
  connect(entry, &QAction::triggered, this, [this] {
    m_desk.setEditing(Editing::None);
    // The click itself has turned the mark.
    showState();
  });
}

void GameMenu::addEditing(const QString& name, const QString& caption, Editing editing) {
  QAction* entry = newEntry(*this, name, caption);
  entry->setCheckable(true);
  m_editings.emplace_back(entry, editing);
  connect(entry, &QAction::triggered, this,
          [this, editing](bool on) { m_desk.setEditing(on ? editing : Editing::None); });
}

void GameMenu::addEditSteps() {
  m_undoEdit = newEntry(*this, QStringLiteral("mnuGameUndoEdit"), tr("Undo e&dit"));
  m_redoEdit = newEntry(*this, QStringLiteral("mnuGameRedoEdit"), tr("Redo ed&it"));
  connect(m_undoEdit, &QAction::triggered, &m_desk, &Desk::takeBack);
  connect(m_redoEdit, &QAction::triggered, &m_desk, &Desk::doAgain);
}

void GameMenu::addRules() {
  auto* menu = new QMenu(tr("Rul&es"), this);
  menu->setObjectName(QStringLiteral("mnuGameRules"));
  addMenu(menu);
  auto* group = new QActionGroup(menu);
  const auto add = [&](const QString& name, const QString& caption, session::Rules rules) {
    QAction* entry = newEntry(*menu, name, caption);
    entry->setCheckable(true);
    group->addAction(entry);
    m_rules.emplace_back(entry, rules);
    connect(entry, &QAction::triggered, this, [this, rules] { m_desk.setRules(rules); });
  };
  add(QStringLiteral("mnuGameRulesOrb"), tr("&ORB's own"), session::Rules::Orb);
  add(QStringLiteral("mnuGameRulesUsual"), tr("The &usual ones"), session::Rules::Usual);
  m_compare =
      newEntry(*this, QStringLiteral("mnuGameCompare"), tr("&Compare with the usual rules"));
  m_compare->setCheckable(true);
  connect(m_compare, &QAction::triggered, &m_desk, &Desk::setCompare);
}

void GameMenu::addLetters(LettersCommands& letters) {
  connect(newEntry(*this, QStringLiteral("mnuGameLetters"), tr("Le&tters...")), &QAction::triggered,
          &letters, &LettersCommands::showLetters);
  connect(newEntry(*this, QStringLiteral("mnuGameReceived"), tr("Recei&ved orders...")),
          &QAction::triggered, &letters, &LettersCommands::showReceived);
}

void GameMenu::showState() {
  const model::Stage now = m_desk.game().Stage;
  const Editing edited = m_desk.now().Editing;
  for (const auto& [entry, stage] : m_stages) {
    entry->setChecked(stage == now && edited == Editing::None);
    entry->setEnabled(stage == now);
  }
  for (const auto& [entry, editing] : m_editings)
    entry->setChecked(editing == edited);
  m_tryOut->setChecked(m_desk.trial().has_value());
  m_tryOut->setEnabled(m_desk.trial() ||
                       (session::TakesOrders(m_desk.game()) && edited == Editing::None));
  for (const auto& [entry, rules] : m_rules)
    entry->setChecked(rules == m_desk.now().Rules);
  m_compare->setChecked(m_desk.view().compare);
  m_compare->setText(m_desk.now().Rules == session::Rules::Orb
                         ? tr("&Compare with the usual rules")
                         : tr("&Compare with ORB's own rules"));
  for (QAction* entry : {m_undoEdit, m_redoEdit})
    entry->setVisible(edited != Editing::None);
  m_undoEdit->setEnabled(m_desk.canUndoEdit());
  m_redoEdit->setEnabled(m_desk.canRedoEdit());
  m_undo->setEnabled(session::CanUndoSeason(m_desk.now()));
}

}  // namespace orb::ui
