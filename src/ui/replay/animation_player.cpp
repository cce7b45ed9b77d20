#include "ui/replay/animation_player.h"

#include "history/game_series.h"
#include "render/animation_view.h"
#include "ui/output/file_dialogs.h"
#include "ui/replay/animation_export.h"
#include "ui/session/attempt.h"
#include "ui/widgets/desktop_wishes.h"
#include "ui/widgets/game_name.h"

#include <algorithm>
#include <iterator>
#include <memory>
#include <utility>

namespace orb::ui {
namespace {

/// A little under the time of a frame on most screens.
constexpr int FrameMilliseconds = 15;

/// After a pause of the whole program the animation goes on where it was.
constexpr double MostSecondsAtOnce = 0.25;

constexpr const char* NothingToAnimate = "There is nothing to animate.";

std::vector<double> lengthsOf(const std::vector<history::ReplayPart>& parts) {
  std::vector<double> lengths;
  std::transform(parts.begin(), parts.end(), std::back_inserter(lengths),
                 [](const history::ReplayPart& part) { return render::Seconds(part.Replay); });
  return lengths;
}

}  // namespace

AnimationPlayer::AnimationPlayer(const Desk& desk, model::Messages& messages, MapPicture& map,
                                 QWidget* window)
    : QObject(window),
      m_desk(desk),
      m_messages(messages),
      m_map(map),
      m_window(window),
      m_bar(new AnimationBar(window)) {
  m_bar->hide();
  m_timer.setTimerType(Qt::PreciseTimer);
  m_timer.setInterval(FrameMilliseconds);
  connect(&m_timer, &QTimer::timeout, this, &AnimationPlayer::tick);
  connect(&desk, &Desk::viewChanged, this, &AnimationPlayer::showOptions);
  connectBar();
}

void AnimationPlayer::connectBar() {
  connect(m_bar, &AnimationBar::playOrStop, this, &AnimationPlayer::playOrStop);
  connect(m_bar, &AnimationBar::first, this, [this] { moveTo(0); });
  connect(m_bar, &AnimationBar::last, this, [this] { moveTo(m_playhead.seasonCount()); });
  connect(m_bar, &AnimationBar::moved, this, &AnimationPlayer::moveTo);
  connect(m_bar, &AnimationBar::back, this, [this] {
    m_playhead.back();
    show();
  });
  connect(m_bar, &AnimationBar::forward, this, [this] {
    m_playhead.forward();
    show();
  });
  connect(m_bar, &AnimationBar::exportWanted, this, &AnimationPlayer::exportParts);
  connect(m_bar, &AnimationBar::closed, this, &AnimationPlayer::end);
}

void AnimationPlayer::playSeason() {
  attempt(m_messages, [this] {
    session::ExpectFinished(m_desk.now());
    play({history::SeasonPart(m_desk.game(), m_desk.now().Outcomes)});
  });
}

void AnimationPlayer::askAndPlayFiles() {
  const auto files = askGamesToAnimate(m_window, m_desk);
  if (!files.empty()) playFiles(files);
}

void AnimationPlayer::playFiles(const std::vector<std::filesystem::path>& files) {
  attempt(m_messages, [&] {
    const history::GameSeries read = history::ReadGameSeries(files, m_desk.game());
    std::vector<history::ReplayPart> parts = history::ReplaySequence(read.Games);
    if (parts.empty()) {
      return m_messages.Show(read.LeftOut + NothingToAnimate, model::Icon::Exclamation);
    }
    if (!read.LeftOut.empty()) {
      m_messages.Show("Left out of the animation:\r" + read.LeftOut, model::Icon::Exclamation);
    }
    play(std::move(parts));
  });
}

void AnimationPlayer::playGames(const std::vector<model::GameState>& games) {
  attempt(m_messages, [&] {
    std::vector<history::ReplayPart> parts = history::ReplaySequence(games);
    if (parts.empty()) return m_messages.Show(NothingToAnimate, model::Icon::Exclamation);
    play(std::move(parts));
  });
}

/// Throws FatalError when it cannot be drawn; nothing has begun then.
void AnimationPlayer::play(std::vector<history::ReplayPart> parts) {
  end();
  auto picture = std::make_unique<AnimationPicture>(m_map, m_desk.dataDirectory());
  picture->setReplay(parts.front().Replay, m_desk.view().mapOptions);
  m_picture = picture.release();
  // A click must not lead the keys to the map below.
  m_picture->setFocusPolicy(Qt::ClickFocus);
  m_picture->setFocusProxy(m_bar);
  m_parts = std::move(parts);
  m_playhead = Playhead(lengthsOf(m_parts));
  m_shownSeason = 0;
  m_bar->setSeasonCount(m_playhead.seasonCount());
  m_focusBefore = m_bar->window()->focusWidget();
  m_bar->show();
  m_bar->setFocus();
  m_picture->show();
  show();
  setPlaying(true);
  emit changed();
}

void AnimationPlayer::end() {
  if (!isOn()) return;
  setPlaying(false);
  m_bar->hide();
  // Deleted later: it may just be painting, or handling the event that led here.
  m_picture->hide();
  m_picture->deleteLater();
  m_picture.clear();
  m_parts.clear();
  emit changed();
  if (m_focusBefore) m_focusBefore->setFocus();
}

void AnimationPlayer::playOrStop() {
  // Played to the end, it starts over.
  if (!m_timer.isActive() && m_playhead.atEnd()) moveTo(0);
  setPlaying(!m_timer.isActive());
}

void AnimationPlayer::setPlaying(bool playing) {
  m_bar->showPlaying(playing);
  m_clock.start();
  if (playing) {
    m_timer.start();
  } else {
    m_timer.stop();
  }
}

void AnimationPlayer::tick() {
  const double seconds = static_cast<double>(m_clock.nsecsElapsed()) / 1e9;
  // While the slider is held the hand decides, and no time is to be made up afterwards.
  m_clock.start();
  if (m_bar->isHeld()) return;
  m_playhead.advance(std::min(seconds, MostSecondsAtOnce) * m_bar->speed());
  if (m_playhead.atEnd()) setPlaying(false);
  show();
}

void AnimationPlayer::moveTo(double position) {
  m_playhead.moveTo(position);
  show();
}

void AnimationPlayer::show() {
  const int season = m_playhead.season();
  // Only a new season is drawn as a whole; within one only the progress changes.
  const history::ReplayPart& part = m_parts[static_cast<std::size_t>(season)];
  if (m_shownSeason != season) {
    const auto draw = [&] { m_picture->setReplay(part.Replay, m_desk.view().mapOptions); };
    // Ended before the box comes up: a timer still running would meet the same error below it.
    if (!attempt(m_messages, draw, [this] { end(); })) return;
    m_shownSeason = season;
  }
  const double progress = m_playhead.progress();
  m_picture->setProgress(desktopWishes().lessMotion ? render::AtRest(part.Replay, progress)
                                                    : progress);
  // In the words of the map above it.
  const model::GameState& shown = part.Replay.Start;
  m_bar->showPosition(m_playhead.position(), stageCaption(shown.Season, shown.Year, shown.Stage));
}

/// How the map is shown may change while it plays.
void AnimationPlayer::showOptions() {
  m_shownSeason.reset();
  if (isOn()) show();
}

void AnimationPlayer::exportParts() {
  // It would run on unseen behind the dialog.
  setPlaying(false);
  const auto file = exportAnimation(m_parts, m_desk, m_messages, m_window);
  if (file) emit noted(tr("The animation is in %1.").arg(displayPath(file->string())));
}

}  // namespace orb::ui
