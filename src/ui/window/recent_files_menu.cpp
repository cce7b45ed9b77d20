#include "ui/window/recent_files_menu.h"

#include "ui/widgets/controls.h"
#include "ui/widgets/message_boxes.h"
#include "ui/widgets/plain_text.h"

#include <QFile>
#include <QFileInfo>

namespace orb::ui {

RecentFilesMenu::RecentFilesMenu(Desk& desk, WindowMemory& memory, QWidget* window, QWidget* parent)
    : QMenu(tr("Open &Recent"), parent), m_desk(desk), m_memory(memory), m_window(window) {
  setObjectName(QStringLiteral("mnuFileRecent"));
  setToolTipsVisible(true);
  connect(this, &QMenu::aboutToShow, this, &RecentFilesMenu::fill);
  fill();
}

void RecentFilesMenu::fill() {
  clear();
  const QStringList files = m_memory.recentFiles();
  QStringList names;
  for (const QString& file : files)
    names << QFileInfo(file).fileName();
  for (qsizetype i = 0; i < files.size(); ++i) {
    const QString& file = files[i];
    QString name = names[i];
    // Equal names are told apart by their folders.
    if (names.count(name) > 1) name += tr("  in %1").arg(QFileInfo(file).absolutePath());
    QAction* entry = newEntry(*this, QStringLiteral("mnuFileRecent%1").arg(i + 1),
                              QStringLiteral("&%1  %2").arg(i + 1).arg(captionText(name)));
    entry->setToolTip(file);
    connect(entry, &QAction::triggered, this, [this, file] { open(file); });
  }
  addSeparator();
  QAction* forget = newEntry(*this, QStringLiteral("mnuFileRecentClear"), tr("&Clear this list"));
  forget->setEnabled(!files.isEmpty());
  connect(forget, &QAction::triggered, this, [this] { m_memory.clearRecentFiles(); });
}

void RecentFilesMenu::open(const QString& file) {
  if (QFileInfo::exists(file)) return m_desk.openGame(QFile::encodeName(file).toStdString(), false);
  // It may be on a disk that is only away for now: the user knows.
  MessageBox box(tr("%1 is not there any more.\nTake it off this list?").arg(file),
                 QMessageBox::Question, m_window);
  box.setObjectName(QStringLiteral("frmRecentFile"));
  box.setStandardButtons(QMessageBox::Yes | QMessageBox::No);
  box.setDefaultButton(QMessageBox::Yes);
  box.setEscapeButton(QMessageBox::No);
  if (box.exec() == QMessageBox::Yes) m_memory.removeRecentFile(file);
}

}  // namespace orb::ui
