#include "ui/trial/trial_banner.h"

#include "ui/widgets/message_boxes.h"

namespace orb::ui {

TrialBanner::TrialBanner(Desk& desk, QWidget* window)
    : NoticeBanner(QStringLiteral("fraTrial"), QStringLiteral("lblTrial"),
                   tr("Tried out: nothing is changed"), window),
      m_desk(desk),
      m_resolve(addButton(QStringLiteral("butTrialResolve"), tr("Resolve so"),
                          tr("Resolves the stage with these orders"))) {
  QPushButton* back =
      addButton(QStringLiteral("butTrialBack"), tr("Bac&k"), tr("Shows the game as it is (Esc)"));
  connect(back, &QPushButton::clicked, &m_desk, &Desk::endTrial);
  connect(this, &NoticeBanner::escaped, &m_desk, &Desk::endTrial);
  connect(m_resolve, &QPushButton::clicked, &m_desk, &Desk::resolve);
  connect(&m_desk, &Desk::trialChanged, this, &TrialBanner::showTrial);
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
  setDetail(detail);
  // Orders that are not in the list cannot be carried out.
  m_resolve->setVisible(trial->change.empty());
  m_resolve->setEnabled(trial->objection.empty());
}

}  // namespace orb::ui
