#pragma once

#include <QAction>
#include <QString>
#include <QToolBar>

namespace orb::ui {

class EditMenu;
class FileMenu;
class MapMenu;

/// The frequent commands as buttons. Each is an entry of a menu, and is enabled and checked with
/// it.
class Toolbar : public QToolBar {
  Q_OBJECT

 public:
  Toolbar(const FileMenu& fileMenu, const EditMenu& editMenu, const MapMenu& mapMenu,
          QWidget* parent);

 private:
  void addButtons(const FileMenu& fileMenu, const EditMenu& editMenu, const MapMenu& mapMenu);

  /// A button for a menu's command. The icon is the name of a drawing; the tip says what it does.
  void addButton(const QString& name, const QString& icon, const QString& tip, QAction* command);
};

}  // namespace orb::ui
