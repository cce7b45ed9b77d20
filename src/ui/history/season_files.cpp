#include "ui/history/season_files.h"

#include "history/sequence_names.h"
#include "model/errors.h"
#include "session/commands.h"
#include "session/story.h"

#include <QElapsedTimer>
#include <QGuiApplication>

#include <system_error>
#include <utility>

namespace orb::ui {

namespace fs = std::filesystem;
using history::Moment;
using session::Situation;

namespace {

/// As long as no hand notices.
constexpr int StepMilliseconds = 8;

}  // namespace

SeasonFiles::SeasonFiles(const Desk& desk, QObject* parent) : QObject(parent), m_desk(desk) {
  using session::Changes;
  connect(&m_timer, &QTimer::timeout, this, &SeasonFiles::readSome);
  desk.whenChanged(Changes::Season | Changes::File | Changes::Game, this, &SeasonFiles::look);
  connect(&desk, &Desk::saved, this, &SeasonFiles::look);
  // Other programs write files as well.
  connect(qGuiApp, &QGuiApplication::applicationStateChanged, this, [this](Qt::ApplicationState s) {
    if (s == Qt::ApplicationActive) look();
  });
  look();
}

void SeasonFiles::look() {
  const Situation& now = m_desk.now();
  const fs::path own = now.Game.FileName.empty() ? now.EarlierFile : now.Game.FileName;
  // Of another game nothing is known yet; of the same one, what was found before still counts.
  if (own.parent_path() != m_origin.parent_path() ||
      history::SeriesName(own) != history::SeriesName(m_origin)) {
    m_read.clear();
    m_known.clear();
  }
  m_origin = own;
  m_waiting.clear();
  if (own.empty()) m_read.clear();
  order();
  if (own.empty()) return m_timer.stop();
  m_waiting = history::FilesNamedAlike(own);
  m_timer.start(0);
}

void SeasonFiles::readSome() {
  QElapsedTimer clock;
  clock.start();
  for (; !m_waiting.empty() && clock.elapsed() < StepMilliseconds; m_waiting.pop_back()) {
    const fs::path& file = m_waiting.back();
    std::error_code gone;
    const auto written = fs::last_write_time(file, gone);
    const auto known = m_known.find(file);
    if (gone || (known != m_known.end() && known->second.Written == written)) continue;
    Moment nothing;
    nothing.Written = written;
    m_known[file] = history::ReadMoment(file, m_desk.game().Map).value_or(nothing);
  }
  if (!m_waiting.empty()) return;
  m_timer.stop();
  m_read.clear();
  std::error_code ignored;
  for (const auto& [file, moment] : m_known) {
    if (!moment.File.empty() && fs::exists(file, ignored)) m_read.push_back(moment);
  }
  order();
}

void SeasonFiles::order() {
  const Moment present = history::MomentOf(m_desk.game());
  const auto names = [](const std::vector<Moment>& moments) {
    std::vector<std::pair<fs::path, std::string>> all;
    all.reserve(moments.size());
    for (const Moment& moment : moments) {
      all.emplace_back(moment.File, moment.Season + std::to_string(moment.Year) +
                                        std::to_string(static_cast<int>(moment.Stage)));
    }
    return all;
  };
  const auto before = names(m_moments);
  m_moments = history::Timeline(m_read, present);
  m_present = 0;
  while (!history::IsSameStage(m_moments[m_present], present))
    ++m_present;
  if (names(m_moments) != before) emit changed();
}

std::optional<Situation> SeasonFiles::situationIn(const Moment& moment) const {
  // The present stage is taken as it is.
  if (moment.File.empty()) return m_desk.now();
  Situation situation;
  situation.Game = model::EmptyGame(m_desk.game().Map);
  situation.Game.Countries = m_desk.game().Countries;
  situation.Rules = m_desk.now().Rules;
  model::Consent messages;
  try {
    if (!session::ReadGame(situation, moment.File, messages)) return std::nullopt;
  } catch (const model::FatalError&) {
    return std::nullopt;
  }
  const bool isSame = history::IsSameStage(history::MomentOf(situation.Game), moment);
  return isSame ? std::optional(std::move(situation)) : std::nullopt;
}

std::optional<Past> SeasonFiles::read(std::size_t index) const {
  const Moment& wanted = m_moments[index];
  std::optional<Situation> story;
  for (std::size_t i = 0; i < index; ++i) {
    const Moment& earlier = m_moments[i];
    if (earlier.Season != wanted.Season || earlier.Year != wanted.Year) continue;
    auto next = situationIn(earlier);
    if (next && story) next = session::WithStory(std::move(*next), *story);
    if (next) story = std::move(next);
  }
  auto found = situationIn(wanted);
  if (!found) return std::nullopt;
  if (story) found = session::WithStory(std::move(*found), *story);
  return Past{std::move(*found), wanted.File};
}

std::vector<model::GameState> SeasonFiles::readAll() const {
  std::vector<model::GameState> games;
  for (const Moment& moment : m_moments) {
    if (auto situation = situationIn(moment)) games.push_back(std::move(situation->Game));
  }
  return games;
}

}  // namespace orb::ui
