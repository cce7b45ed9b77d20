#include "ui/edit_menu.h"

#include "ui/controls.h"
#include "ui/export_commands.h"

namespace orb::ui {

EditMenu::EditMenu(ExportCommands& commands, QWidget* map, QWidget* parent)
    : QMenu(tr("&Edit"), parent) {
  setObjectName(QStringLiteral("mnuEdit"));
  m_copyMap =
      newEntry(*this, QStringLiteral("mnuEditCopyMap"), tr("Copy &Map"), QKeySequence::Copy);
  m_copyMap->setShortcutContext(Qt::WidgetShortcut);
  map->addAction(m_copyMap);
  QAction* copyText = newEntry(*this, QStringLiteral("mnuEditCopyText"), tr("Copy &Text"),
                               Qt::CTRL | Qt::SHIFT | Qt::Key_C);
  connect(m_copyMap, &QAction::triggered, &commands, &ExportCommands::copyMap);
  connect(copyText, &QAction::triggered, &commands, &ExportCommands::copyText);
}

}  // namespace orb::ui
