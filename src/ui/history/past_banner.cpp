#include "ui/history/past_banner.h"

#include "ui/history/history_line.h"

#include <QFile>

namespace orb::ui {

PastBanner::PastBanner(Desk& desk, QWidget* window)
    : NoticeBanner(QStringLiteral("fraPast"), QStringLiteral("lblPast"), {}, window), m_desk(desk) {
  QPushButton* goOn = addButton(QStringLiteral("butPastGoOn"), tr("Go on from here"),
                                tr("Opens this stage as the game"));
  QPushButton* back =
      addButton(QStringLiteral("butPastBack"), tr("Bac&k"), tr("Shows the game as it is (Esc)"));
  connect(goOn, &QPushButton::clicked, this, &PastBanner::goOn);
  connect(back, &QPushButton::clicked, &m_desk, &Desk::endTrial);
  connect(this, &NoticeBanner::escaped, &m_desk, &Desk::endTrial);
  connect(&m_desk, &Desk::trialChanged, this, &PastBanner::showPast);
  showPast();
}

void PastBanner::showPast() {
  const auto& past = m_desk.past();
  setVisible(past.has_value());
  if (!past) return;
  setHeading(momentName(history::MomentOf(past->situation.Game)));
  setDetail(tr("As it is in %1, to look at").arg(QFile::decodeName(past->file.filename().c_str())));
}

void PastBanner::goOn() {
  if (!m_desk.past()) return;
  // A copy: the command ends what is looked at.
  const std::filesystem::path file = m_desk.past()->file;
  m_desk.openGame(file, false);
}

}  // namespace orb::ui
