#include "ui/window/edit_menu.h"

#include "ui/exchange/exchange_commands.h"
#include "ui/output/export_commands.h"
#include "ui/widgets/controls.h"
#include "ui/widgets/plain_text.h"

#include <QApplication>
#include <QClipboard>
#include <QLineEdit>
#include <QMimeData>
#include <QPointer>

namespace orb::ui {

EditMenu::EditMenu(Desk& desk, ExportCommands& commands, ExchangeCommands& exchange, QWidget* map,
                   QWidget* parent)
    : QMenu(tr("&Edit"), parent), m_desk(desk) {
  setObjectName(QStringLiteral("mnuEdit"));
  m_takeBack = newEntry(*this, QStringLiteral("mnuEditTakeBack"), {}, QKeySequence::Undo);
  m_doAgain =
      newEntry(*this, QStringLiteral("mnuEditDoAgain"), {}, Qt::CTRL | Qt::SHIFT | Qt::Key_Z);
  const auto connectStep = [&](const QAction* entry, void (Desk::*step)()) {
    connect(entry, &QAction::triggered, this, [this, map, step] { go(step, *map); });
  };
  connectStep(m_takeBack, &Desk::takeBack);
  connectStep(m_doAgain, &Desk::doAgain);
  addSeparator();
  m_copyMap =
      newEntry(*this, QStringLiteral("mnuEditCopyMap"), tr("Copy &Map"), QKeySequence::Copy);
  // Ctrl+C belongs to whatever has the keyboard: lists and text boxes copy their own lines. The
  // map, too, copies only while it has it.
  m_copyMap->setShortcutContext(Qt::WidgetShortcut);
  map->addAction(m_copyMap);
  QAction* copyText = newEntry(*this, QStringLiteral("mnuEditCopyText"), tr("Copy &Text"),
                               Qt::CTRL | Qt::SHIFT | Qt::Key_C);
  m_copyOrders = newEntry(*this, QStringLiteral("mnuEditCopyOrders"), tr("Copy &Orders"));
  addSeparator();
  m_pasteOrders = newEntry(*this, QStringLiteral("mnuEditPasteOrders"), tr("&Paste Orders..."),
                           Qt::CTRL | Qt::SHIFT | Qt::Key_V);
  connect(m_copyMap, &QAction::triggered, &commands, &ExportCommands::copyMap);
  connect(copyText, &QAction::triggered, &commands, &ExportCommands::copyText);
  connect(m_copyOrders, &QAction::triggered, &exchange, &ExchangeCommands::copyOrders);
  connect(m_pasteOrders, &QAction::triggered, &exchange, &ExchangeCommands::pasteOrders);
  // Every command is a step, whatever it changed.
  connect(&m_desk, &Desk::changed, this, &EditMenu::showState);
  connect(&m_desk, &Desk::viewChanged, this, &EditMenu::showState);
  connect(QGuiApplication::clipboard(), &QClipboard::dataChanged, this, &EditMenu::showState);
  showState();
}

/// The panel of another stage takes the keyboard into its text box, whose own the next Ctrl+Z would
/// be.
void EditMenu::go(void (Desk::*step)(), QWidget& map) {
  const QPointer<QWidget> before = QApplication::focusWidget();
  (m_desk.*step)();
  if (qobject_cast<QLineEdit*>(before) != nullptr) return;
  (before != nullptr && before->isVisible() ? *before : map).setFocus();
}

void EditMenu::showState() {
  const auto name = [](QAction& entry, const QString& caption, const QString& step) {
    entry.setText(step.isEmpty() ? caption
                                 : QStringLiteral("%1: %2").arg(caption, captionText(step)));
    entry.setEnabled(!step.isEmpty());
  };
  name(*m_takeBack, tr("Take &back"), m_desk.lastStep());
  name(*m_doAgain, tr("&Do again"), m_desk.nextStep());
  // The map and the report can be copied at any time.
  m_copyOrders->setEnabled(session::HasOrderLines(m_desk.game()));
  const QMimeData* clipboard = QGuiApplication::clipboard()->mimeData();
  const bool hasText = clipboard != nullptr && clipboard->hasText();
  m_pasteOrders->setEnabled(session::TakesOrders(m_desk.game()) && !m_desk.view().viewOnly &&
                            hasText);
}

}  // namespace orb::ui
