#include "ui/history/history_bar.h"

#include "ui/history/centres_dialog.h"
#include "ui/widgets/icons.h"

#include <QHBoxLayout>
#include <QToolButton>

#include <utility>

namespace orb::ui {
namespace {

constexpr int Gap = 4;  // pixels

}  // namespace

HistoryBar::HistoryBar(Desk& desk, QWidget* parent)
    : QFrame(parent), m_desk(desk), m_files(desk, this), m_line(new HistoryLine) {
  setObjectName(QStringLiteral("fraHistory"));
  setAccessibleName(tr("History of the game"));
  auto* row = new QHBoxLayout(this);
  row->setContentsMargins({});
  row->setSpacing(Gap);
  row->addWidget(m_line, 1);
  QToolButton* play = addButton(QStringLiteral("butHistoryPlay"), QStringLiteral("play"),
                                tr("Play the history of the game"));
  QToolButton* chart = addButton(QStringLiteral("butHistoryCentres"), QStringLiteral("chart"),
                                 tr("Show the centres over the years"));
  connect(play, &QToolButton::clicked, this, [this] { emit playWanted(m_files.readAll()); });
  connect(chart, &QToolButton::clicked, this, &HistoryBar::showCentres);
  connect(m_line, &HistoryLine::valueChanged, this, &HistoryBar::choose);
  connect(&m_files, &SeasonFiles::changed, this, &HistoryBar::showStages);
  connect(&m_desk, &Desk::trialChanged, this, &HistoryBar::showPlace);
  showStages();
}

QToolButton* HistoryBar::addButton(const QString& name, const QString& icon, const QString& tip) {
  // A flat push button would not show that it has the keyboard.
  auto* button = new QToolButton;
  button->setObjectName(name);
  button->setIcon(newIcon(icon));
  button->setAutoRaise(true);
  const int side = fontMetrics().height() * 5 / 4;
  button->setIconSize({side, side});
  button->setFixedSize(side + 2 * Gap, side + 2 * Gap);
  button->setFocusPolicy(Qt::TabFocus);
  button->setToolTip(tip);
  button->setAccessibleName(tip);
  layout()->addWidget(button);
  return button;
}

void HistoryBar::setWanted(bool wanted) {
  m_wanted = wanted;
  if (!wanted && m_desk.past()) m_desk.endTrial();
  decide();
}

void HistoryBar::setRoom(bool hasRoom) {
  m_hasRoom = hasRoom;
  decide();
}

void HistoryBar::decide() {
  const bool visible = m_wanted && m_hasRoom && m_files.moments().size() > 1;
  if (visible == !isHidden()) return;
  setVisible(visible);
  emit shown();
}

void HistoryBar::showStages() {
  m_line->setMoments(m_files.moments(), m_files.present());
  showPlace();
  decide();
}

void HistoryBar::showPlace() {
  std::size_t place = m_files.present();
  const std::vector<history::Moment>& moments = m_files.moments();
  for (std::size_t i = 0; m_desk.past() && i < moments.size(); ++i) {
    if (history::IsSameStage(moments[i], history::MomentOf(m_desk.past()->situation.Game)))
      place = i;
  }
  m_line->showAt(place);
}

void HistoryBar::choose(int index) {
  const auto chosen = static_cast<std::size_t>(index);
  if (chosen == m_files.present()) return m_desk.endTrial();
  auto past = m_files.read(chosen);
  if (past) return m_desk.showPast(std::move(*past));
  // It has changed since it was looked at: the line follows.
  emit noted(tr("The file of that stage is not as it was."));
  showPlace();
  m_files.look();
}

session::Situation HistoryBar::story() const {
  auto present = m_files.read(m_files.present());
  if (present) return std::move(present->situation);
  return m_desk.now();
}

void HistoryBar::showCentres() {
  CentresDialog dialog(m_desk.game().Countries, history::CentresOverTime(m_files.moments()),
                       window());
  dialog.exec();
}

}  // namespace orb::ui
