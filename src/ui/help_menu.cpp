#include "ui/help_menu.h"

#include "model/messages.h"
#include "render/qt/text_codec.h"
#include "ui/controls.h"

#include <QMessageBox>

namespace orb::ui {

HelpMenu::HelpMenu(QWidget* window) : QMenu(tr("&Help"), window), m_window(window) {
  setObjectName(QStringLiteral("mnuHelp"));
  QAction* about = newEntry(*this, QStringLiteral("mnuHelpAbout"), tr("&About"));
  connect(about, &QAction::triggered, this, &HelpMenu::about);
}

void HelpMenu::about() {
  QMessageBox::about(
      m_window, render::ToQString(model::ProgramName),
      tr("<h3>ORB v5.5</h3><p>Holds a game of seven powers, their armies and fleets, "
         "draws its map and resolves its orders.</p>"));
}

}  // namespace orb::ui
