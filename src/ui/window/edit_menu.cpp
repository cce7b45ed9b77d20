#include "ui/window/edit_menu.h"

#include "ui/exchange/exchange_commands.h"
#include "ui/output/export_commands.h"
#include "ui/widgets/controls.h"

namespace orb::ui {

EditMenu::EditMenu(Desk& desk, ExportCommands& commands, ExchangeCommands& exchange, QWidget* map,
                   QWidget* parent)
    : QMenu(tr("&Edit"), parent), m_desk(desk) {
  setObjectName(QStringLiteral("mnuEdit"));
  m_copyMap =
      newEntry(*this, QStringLiteral("mnuEditCopyMap"), tr("Copy &Map"), QKeySequence::Copy);
  // Ctrl+C belongs to whatever has the keyboard: lists and text boxes copy their own lines. The
  // map, too, copies only while it has it.
  m_copyMap->setShortcutContext(Qt::WidgetShortcut);
  map->addAction(m_copyMap);
  QAction* copyText = newEntry(*this, QStringLiteral("mnuEditCopyText"), tr("Copy &Text"),
                               Qt::CTRL | Qt::SHIFT | Qt::Key_C);
  m_copyOrders = newEntry(*this, QStringLiteral("mnuEditCopyOrders"), tr("Copy &orders"));
  addSeparator();
  m_pasteOrders = newEntry(*this, QStringLiteral("mnuEditPasteOrders"), tr("&Paste orders..."),
                           Qt::CTRL | Qt::SHIFT | Qt::Key_V);
  connect(m_copyMap, &QAction::triggered, &commands, &ExportCommands::copyMap);
  connect(copyText, &QAction::triggered, &commands, &ExportCommands::copyText);
  connect(m_copyOrders, &QAction::triggered, &exchange, &ExchangeCommands::copyOrders);
  connect(m_pasteOrders, &QAction::triggered, &exchange, &ExchangeCommands::pasteOrders);
  using session::Changes;
  m_desk.whenChanged(Changes::Season | Changes::Orders, this, &EditMenu::showState);
  showState();
}

void EditMenu::showState() {
  // The map and the report can be copied at any time.
  m_copyOrders->setEnabled(session::HasOrderLines(m_desk.game()));
  m_pasteOrders->setEnabled(session::TakesOrders(m_desk.game()));
}

}  // namespace orb::ui
