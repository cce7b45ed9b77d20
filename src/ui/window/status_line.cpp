#include "ui/window/status_line.h"

#include "ui/output/file_dialogs.h"
#include "ui/widgets/controls.h"

#include <QFileInfo>

namespace orb::ui {

StatusLine::StatusLine(const Desk& desk, QWidget* parent)
    : QStatusBar(parent),
      m_desk(desk),
      m_text(new ElidedLabel),
      m_rules(new QLabel),
      m_readOnly(new QLabel(tr("Read-only"))),
      m_file(new ElidedLabel) {
  constexpr int margin = 10;  // pixels
  m_text->setObjectName(QStringLiteral("lblStatus"));
  m_rules->setObjectName(QStringLiteral("lblRules"));
  m_readOnly->setObjectName(QStringLiteral("lblReadOnly"));
  m_file->setObjectName(QStringLiteral("lblFileName"));
  m_file->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
  for (QLabel* label :
       {static_cast<QLabel*>(m_text), m_rules, m_readOnly, static_cast<QLabel*>(m_file)}) {
    label->setTextFormat(Qt::PlainText);
    label->setContentsMargins(margin, 0, margin, 0);
    addWidget(label, label == m_text ? 1 : 0);
  }
  setSizeGripEnabled(false);
  m_desk.whenChanged(session::Changes::File | session::Changes::Rules, this, &StatusLine::showGame);
  showGame();
}

void StatusLine::showText(const QString& text) {
  m_text->setText(text);
}

void StatusLine::showGame() {
  const QString file = displayPath(m_desk.game().FileName);
  m_file->setText(file);
  m_file->setToolTip(file);
  const bool usual = m_desk.now().Rules == session::Rules::Usual;
  m_rules->setText(usual ? tr("By the usual rules") : QString());
  m_rules->setVisible(usual);
  const QFileInfo written(file);
  const bool canSave = session::CanSave(m_desk.now());
  const bool canWrite = !written.exists() || written.isWritable();
  m_readOnly->setToolTip(
      canSave ? tr("The file is protected from being written: Save as keeps the game elsewhere.")
              : tr("The game was opened for reading only: Save as keeps it elsewhere."));
  m_readOnly->setVisible(!canSave || !canWrite);
}

}  // namespace orb::ui
