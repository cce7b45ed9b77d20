#include "ui/window/toolbar.h"

#include "ui/widgets/icons.h"

#include <QToolButton>

namespace orb::ui {

Toolbar::Toolbar(QWidget* parent) : QToolBar(tr("Toolbar"), parent) {
  setObjectName(QStringLiteral("barTools"));
  setMovable(false);
  // Qt's own menu offers to hide the bar, which is easily done unawares and hard to take back.
  setContextMenuPolicy(Qt::PreventContextMenu);
  // In proportion to the letters, so that the icons follow the system's font size.
  const int side = fontMetrics().height() * 3 / 2;
  setIconSize({side, side});
}

void Toolbar::addButton(const QString& name, const QString& icon, const QString& tip,
                        QAction* command) {
  command->setIcon(newIcon(icon));
  // In a menu the icons of some entries only would stand out.
  command->setIconVisibleInMenu(false);
  const QString keys = command->shortcut().toString(QKeySequence::NativeText);
  command->setToolTip(keys.isEmpty() ? tip : QStringLiteral("%1 (%2)").arg(tip, keys));
  addAction(command);
  QWidget* button = widgetForAction(command);
  button->setObjectName(name);
  button->setAccessibleName(tip);
  // Reached with the Tab key, but a click leaves the keyboard where orders are typed.
  button->setFocusPolicy(Qt::TabFocus);
}

}  // namespace orb::ui
