#include "ui/window/recent_files_menu.h"

#include "ui/widgets/controls.h"
#include "ui/widgets/plain_text.h"

#include <QFile>
#include <QFileInfo>

namespace orb::ui {

RecentFilesMenu::RecentFilesMenu(Desk& desk, WindowMemory& memory, QWidget* parent)
    : QMenu(tr("Open &recent"), parent), m_desk(desk), m_memory(memory) {
  setObjectName(QStringLiteral("mnuFileRecent"));
  setToolTipsVisible(true);
  connect(this, &QMenu::aboutToShow, this, &RecentFilesMenu::fill);
  fill();
}

void RecentFilesMenu::fill() {
  clear();
  const QStringList files = m_memory.recentFiles();
  for (qsizetype i = 0; i < files.size(); ++i) {
    const QString& file = files[i];
    const QString name = captionText(QFileInfo(file).fileName());
    QAction* entry = newEntry(*this, QStringLiteral("mnuFileRecent%1").arg(i + 1),
                              QStringLiteral("&%1  %2").arg(i + 1).arg(name));
    entry->setToolTip(file);
    connect(entry, &QAction::triggered, this,
            [this, file] { m_desk.openGame(QFile::encodeName(file).toStdString(), false); });
  }
  addSeparator();
  QAction* forget = newEntry(*this, QStringLiteral("mnuFileRecentClear"), tr("&Clear this list"));
  forget->setEnabled(!files.isEmpty());
  connect(forget, &QAction::triggered, this, [this] { m_memory.clearRecentFiles(); });
}

}  // namespace orb::ui
