#include "ui/game_menu.h"

#include "ui/controls.h"

namespace orb::ui {

GameMenu::GameMenu(Desk& desk, QWidget* parent) : QMenu(tr("&Game"), parent), m_desk(desk) {
  setObjectName(QStringLiteral("mnuGame"));
  m_undo = newEntry(*this, QStringLiteral("mnuGameUndo"), tr("&Undo season"));
  connect(m_undo, &QAction::triggered, &desk, &Desk::undoSeason);
  connect(&desk, &Desk::changed, this, &GameMenu::showState);
  showState();
}

void GameMenu::showState() {
  m_undo->setEnabled(m_desk.game().Stage != "moves");
}

}  // namespace orb::ui
