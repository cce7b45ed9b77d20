#include "ui/window/toolbar.h"

#include "ui/widgets/icons.h"
#include "ui/window/edit_menu.h"
#include "ui/window/file_menu.h"
#include "ui/window/map_menu.h"

#include <QToolButton>

namespace orb::ui {

Toolbar::Toolbar(const FileMenu& fileMenu, const EditMenu& editMenu, const MapMenu& mapMenu,
                 QWidget* parent)
    : QToolBar(tr("Toolbar"), parent) {
  setObjectName(QStringLiteral("barTools"));
  setMovable(false);
  // Qt's own menu offers to hide the bar, which is easily done unawares and hard to take back.
  setContextMenuPolicy(Qt::PreventContextMenu);
  // In proportion to the letters, so that the icons follow the system's font size.
  const int side = fontMetrics().height() * 3 / 2;
  setIconSize({side, side});
  addButtons(fileMenu, editMenu, mapMenu);
}

void Toolbar::addButtons(const FileMenu& fileMenu, const EditMenu& editMenu,
                         const MapMenu& mapMenu) {
  addButton(QStringLiteral("butFileOpen"), QStringLiteral("open"), tr("Open a game"),
            fileMenu.openEntry());
  addButton(QStringLiteral("butFileSave"), QStringLiteral("save"), tr("Save the game"),
            fileMenu.saveEntry());
  addSeparator();
  addButton(QStringLiteral("butFileImportOrders"), QStringLiteral("import-orders"),
            tr("Import orders from a text file"), fileMenu.importOrdersEntry());
  addButton(QStringLiteral("butEditPasteOrders"), QStringLiteral("paste-orders"),
            tr("Paste the orders of one power"), editMenu.pasteOrdersEntry());
  addSeparator();
  addButton(QStringLiteral("butEditCopyMap"), QStringLiteral("copy-map"), tr("Copy the map"),
            editMenu.copyMapEntry());
  addButton(QStringLiteral("butFileExportText"), QStringLiteral("export-text"),
            tr("Export the text report"), fileMenu.exportTextEntry());
  addButton(QStringLiteral("butFilePrint"), QStringLiteral("print"),
            tr("Print the map and the report"), fileMenu.printEntry());
  addSeparator();
  addButton(QStringLiteral("butMapZoomIn"), QStringLiteral("zoom-in"), tr("Enlarge the map"),
            mapMenu.zoomIn());
  addButton(QStringLiteral("butMapZoomOut"), QStringLiteral("zoom-out"), tr("Show the map smaller"),
            mapMenu.zoomOut());
  addButton(QStringLiteral("butMapZoomFit"), QStringLiteral("zoom-fit"),
            tr("Fit the map to the window"), mapMenu.zoomToFit());
  addButton(QStringLiteral("butMapShowOrders"), QStringLiteral("show-orders"),
            tr("Show the orders on the map"), mapMenu.showOrders());
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
