#include "ui/session/desk.h"

#include "orders/order_list.h"
#include "session/resolution_summary.h"
#include "text/qt/text_codec.h"
#include "ui/session/attempt.h"

#include <QFile>

#include <system_error>
#include <utility>

namespace orb::ui {

using session::Changes;
using session::Situation;
using session::StepKind;

namespace {

/// An order as the name of a step has it: a menu's entry has not room for every line.
QString shortened(const std::string& order) {
  constexpr qsizetype longest = 40;
  const QString text = text::ToQString(order).trimmed();
  return text.size() <= longest ? text : text.left(longest) + QChar(0x2026);
}

QString nameOf(const session::History::Step* step) {
  return step == nullptr ? QString() : QString::fromStdString(step->Name.Text);
}

/// What a trial of the stage follows.
constexpr Changes Followed = Changes::Orders | Changes::Rules | Changes::Powers;

}  // namespace

Desk::Desk(Start start, std::filesystem::path dataDirectory, model::Messages& messages,
           QObject* parent)
    : QObject(parent),
      m_session(std::move(start.situation)),
      m_view(start.view),
      m_dataDirectory(std::move(dataDirectory)),
      m_messages(messages) {
  m_session.SetReview([this](const Situation& next) { review(next); });
}

void Desk::setRulesMemory(std::function<session::Rules(const std::string&)> rulesOf) {
  m_rulesOf = std::move(rulesOf);
  // No step: nobody has chosen anything.
  run([this](Situation& next) { session::SetRules(next, m_rulesOf(next.Game.FileName)); });
}

void Desk::recallFolder(const std::filesystem::path& folder) {
  m_folder = folder;
  noteFolder();
}

void Desk::noteFolder() {
  std::error_code error;
  const std::filesystem::path file = std::filesystem::absolute(game().FileName, error);
  if (!game().FileName.empty() && !error) m_folder = file.parent_path();
}

void Desk::newGame() {
  run([this](Situation& next) { session::NewGame(next, m_dataDirectory); }, tr("New"),
      StepKind::Another);
}

void Desk::blankGame() {
  run([this](Situation& next) { session::BlankGame(next, m_dataDirectory); }, tr("Blank"),
      StepKind::Another);
}

void Desk::openGame(const std::filesystem::path& file, bool readOnly) {
  const auto open = [&](Situation& next) {
    session::OpenGame(next, file, readOnly, m_dataDirectory, m_messages);
    session::SetRules(next, m_rulesOf(next.Game.FileName));
  };
  run(open, tr("Open %1").arg(QFile::decodeName(file.filename().c_str())), StepKind::Another);
}

bool Desk::recoverGame(const Situation& recovered) {
  const auto recover = [&](Situation& next) {
    const int number = next.GameNumber + 1;
    next = recovered;
    next.GameNumber = number;
    session::SetRules(next, m_rulesOf(next.Game.FileName));
  };
  return run(recover, tr("Recover"), StepKind::Another);
}

bool Desk::saveGameAs(const std::filesystem::path& file, session::Overwrite overwrite) {
  const bool done = run([&](Situation& next) { session::SaveGameAs(next, file, overwrite); });
  if (!done) return false;
  emit saved();
  emit noted(tr("The game is in %1.").arg(QFile::decodeName(file.c_str())));
  return true;
}

bool Desk::fileOrder(const std::string& text) {
  return run([&](Situation& next) { return session::FileOrder(next, text); },
             tr("Order %1").arg(shortened(text)));
}

void Desk::deleteOrder(int row) {
  const std::vector<std::string>& list = orders::StageList(game());
  const bool there = row >= 0 && row < static_cast<int>(list.size());
  const std::string line = there ? list[static_cast<std::size_t>(row)] : std::string();
  run([&](Situation& next) { return session::DeleteOrder(next, row); },
      tr("Delete %1").arg(shortened(line)));
}

int Desk::fileOrders(const std::vector<exchange::ReadLine>& lines, const QString& how) {
  int filed = 0;
  const auto file = [&](Situation& next) { filed = session::FileOrders(next, lines); };
  return run(file, how) ? filed : 0;
}

void Desk::resolve() {
  // Its questions are about the game as it is.
  endTrial();
  const auto comparing = m_view.compare ? session::Comparing::Yes : session::Comparing::No;
  const auto resolve = [&](Situation& next) {
    return session::Resolve(next, m_messages, session::Noting::Full, comparing);
  };
  const std::string stage(StageText(game()));
  const std::size_t first = game().Stage == model::Stage::Moves ? 0 : now().Outcomes.size();
  const bool done = run(resolve, tr("Resolve %1").arg(text::ToQString(stage)));
  if (done) emit noted(text::ToQString(session::ResolutionSummary(now(), stage, first)));
  if (now().Stopped) emit stopped();
}

void Desk::tryOut() {
  if (session::TakesOrders(game())) begin(tryOutStage(now(), m_view.compare));
}

void Desk::tryOut(const Situation& otherwise, std::string change) {
  Trial trial = tryOutStage(otherwise, m_view.compare);
  trial.change = std::move(change);
  begin(std::move(trial));
}

void Desk::begin(Trial trial) {
  const bool drawn = attempt(m_messages, [&] {
    m_draw(trial.outcome, viewOf(m_view, trial));
    m_trial = std::move(trial);
    m_past.reset();
  });
  if (drawn) emit trialChanged();
}

void Desk::showPast(Past past) {
  const bool drawn = attempt(m_messages, [&] {
    m_draw(past.situation, m_view);
    m_past = std::move(past);
    m_trial.reset();
  });
  if (drawn) emit trialChanged();
}

void Desk::endTrial() {
  if (!m_trial && !m_past) return;
  m_trial.reset();
  m_past.reset();
  attempt(m_messages, [this] { m_draw(now(), m_view); });
  emit trialChanged();
}

View Desk::viewOf(View view, const std::optional<Trial>& trial) {
  if (trial) view.showOrders = true;
  return view;
}

void Desk::review(const Situation& next) {
  std::optional<Trial> trial;
  const bool goesOn = m_trial && m_trial->change.empty() &&
                      session::Within(session::ChangesBetween(now(), next), Followed);
  if (goesOn) trial = tryOutStage(next, m_view.compare);
  m_draw(trial ? trial->outcome : next, viewOf(m_view, trial));
  m_trial = std::move(trial);
  m_past.reset();
}

void Desk::nextSeason() {
  run(session::NextSeason, tr("Next season"));
}

void Desk::undoSeason() {
  run([this](Situation& next) { return session::UndoSeason(next, m_messages); }, tr("Undo season"));
}

void Desk::setRules(session::Rules rules) {
  run([&](Situation& next) { session::SetRules(next, rules); }, tr("Rules"));
}

void Desk::editSeason(const model::SeasonFacts& facts) {
  run([&](Situation& next) { session::EditSeason(next, facts); }, tr("Edit season"));
}

void Desk::setColours(const model::CountryTable& colours) {
  run([&](Situation& next) { session::SetColours(next, colours); });
}

void Desk::takeBack() {
  goTo(&session::Session::TakeBack, tr("Taken back: %1").arg(lastStep()));
}

void Desk::doAgain() {
  goTo(&session::Session::DoAgain, tr("Done again: %1").arg(nextStep()));
}

QString Desk::lastStep() const {
  return nameOf(m_session.Steps().Last());
}

QString Desk::nextStep() const {
  return nameOf(m_session.Steps().Next());
}

void Desk::setEditing(session::Editing editing) {
  run([&](Situation& next) { session::SetEditing(next, editing); });
}

std::string Desk::edit(const session::PositionChange& change) {
  std::string refusal;
  const auto edit = [&](Situation& next) {
    refusal = session::Edit(next, change);
    return refusal.empty();
  };
  const bool units = now().Editing == session::Editing::Units;
  run(edit, units ? tr("Edit units") : tr("Edit provinces"), session::StepKind::Edit);
  return refusal;
}

void Desk::withdrawEdit() {
  tell([this] { return m_session.WithdrawEdit(); });
}

void Desk::setMapOptions(const settings::MapOptions& options) {
  View next = m_view;
  next.mapOptions = options;
  show(next);
}

void Desk::setViewOnly(bool viewOnly) {
  View next = m_view;
  next.viewOnly = viewOnly;
  show(next);
}

void Desk::setShowOrders(bool showOrders) {
  View next = m_view;
  next.showOrders = showOrders;
  show(next);
}

void Desk::setCompare(bool compare) {
  View next = m_view;
  next.compare = compare;
  show(next);
}

bool Desk::run(const session::Command& command, const QString& name, StepKind kind) {
  const bool unsaved = kind == StepKind::Another && hasUnsavedWork();
  const bool done = tell([&] { return m_session.Run(command, {name.toStdString(), kind}); });
  if (done && unsaved)
    emit noted(tr("The game before was not saved: Edit > Take back brings it back."));
  return done;
}

bool Desk::tell(const std::function<session::Effect()>& work) {
  const bool other = m_trial || m_past;
  session::Effect effect{false, Changes::All};
  attempt(m_messages, [&] { effect = work(); });
  noteFolder();
  // Also when the command failed: a check mark may already show what has not happened.
  emit changed(effect.Changed);
  if (other) emit trialChanged();
  return effect.Done;
}

void Desk::goTo(session::Effect (session::Session::*way)(), const QString& told) {
  if (tell([&] { return (m_session.*way)(); })) emit noted(told);
}

void Desk::show(const View& next) {
  attempt(m_messages, [&] {
    std::optional<Trial> trial = m_trial;
    if (trial && trial->change.empty()) trial = tryOutStage(now(), next.compare);
    const Situation& game = m_past ? m_past->situation : now();
    m_draw(trial ? trial->outcome : game, viewOf(next, trial));
    m_view = next;
    m_trial = std::move(trial);
  });
  emit viewChanged();
  if (m_trial) emit trialChanged();
}

}  // namespace orb::ui
