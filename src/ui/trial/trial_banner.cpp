#include "ui/trial/trial_banner.h"

#include "ui/widgets/message_boxes.h"

#include <QEvent>
#include <QGuiApplication>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QPalette>

namespace orb::ui {

TrialBanner::TrialBanner(Desk& desk, QWidget* window)
    : QFrame(window),
      m_desk(desk),
      m_detail(new ElidedLabel),
      m_resolve(newButton(QStringLiteral("butTrialResolve"), tr("Resolve so"))) {
  setObjectName(QStringLiteral("fraTrial"));
  setFrameShape(QFrame::StyledPanel);
  setAutoFillBackground(true);
  m_detail->setObjectName(QStringLiteral("lblTrial"));
  m_detail->setTextFormat(Qt::PlainText);
  QPushButton* back = newButton(QStringLiteral("butTrialBack"), tr("Bac&k"));
  back->setToolTip(tr("Shows the game as it is (Esc)"));
  m_resolve->setToolTip(tr("Resolves the stage with these orders"));
  auto* row = new QHBoxLayout(this);
  // As low as its buttons: the map needs the room.
  row->setContentsMargins(row->contentsMargins().left(), 2, 2, 2);
  row->addWidget(newHeading(tr("Tried out: nothing is changed")));
  row->addWidget(m_detail, 1);
  row->addWidget(m_resolve);
  row->addWidget(back);
  connect(back, &QPushButton::clicked, &m_desk, &Desk::endTrial);
  connect(m_resolve, &QPushButton::clicked, &m_desk, &Desk::resolve);
  connect(&m_desk, &Desk::trialChanged, this, &TrialBanner::showTrial);
  window->installEventFilter(this);
  colour();
  showTrial();
}

void TrialBanner::showTrial() {
  const auto& trial = m_desk.trial();
  setVisible(trial.has_value());
  if (!trial) return;
  QString detail;
  if (!trial->change.empty()) detail = tr("With %1").arg(displayText(trial->change));
  if (!trial->objection.empty())
    detail = tr("It cannot be resolved so. %1").arg(displayText(trial->objection).simplified());
  m_detail->setText(detail);
  m_detail->setToolTip(detail);
  // Orders that are not in the list cannot be carried out.
  m_resolve->setVisible(trial->change.empty());
  m_resolve->setEnabled(trial->objection.empty());
}

void TrialBanner::colour() {
  // Its own palette would hide a change of the theme.
  QPalette palette = parentWidget()->palette();
  palette.setColor(QPalette::Window, noticeColour(palette.color(QPalette::Window)));
  setPalette(palette);
}

void TrialBanner::changeEvent(QEvent* event) {
  QFrame::changeEvent(event);
  if (event->type() == QEvent::ApplicationPaletteChange) colour();
}

/// What has the keyboard has had its chance before the key comes to the window.
bool TrialBanner::eventFilter(QObject* watched, QEvent* event) {
  const bool escapes = event->type() == QEvent::KeyPress &&
                       static_cast<QKeyEvent*>(event)->key() == Qt::Key_Escape && m_desk.trial();
  if (!escapes) return QFrame::eventFilter(watched, event);
  m_desk.endTrial();
  return true;
}

}  // namespace orb::ui
