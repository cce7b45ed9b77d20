#include "ui/session/desk.h"

#include "ui/session/attempt.h"

#include <utility>

namespace orb::ui {

using session::Changes;
using session::Situation;

Desk::Desk(Start start, std::filesystem::path dataDirectory, model::Messages& messages,
           QObject* parent)
    : QObject(parent),
      m_session(std::move(start.situation)),
      m_saved(game()),
      m_view(start.view),
      m_dataDirectory(std::move(dataDirectory)),
      m_messages(messages) {
  m_session.SetReview([this](const Situation& next) { m_draw(next, m_view); });
}

bool Desk::isModified() const {
  return !m_saved || !session::SameWork(*m_saved, game());
}

bool Desk::hasOrdersNoFileKeeps() const {
  return game().Stage != model::Stage::Moves && session::HasOrderLines(game());
}

void Desk::newGame() {
  run([this](Situation& next) { session::NewGame(next, m_dataDirectory); }, FileHolds::Game);
}

void Desk::blankGame() {
  run([this](Situation& next) { session::BlankGame(next, m_dataDirectory); }, FileHolds::Game);
}

void Desk::openGame(const std::filesystem::path& file, bool readOnly) {
  const auto open = [&](Situation& next) {
    session::OpenGame(next, file, readOnly, m_dataDirectory, m_messages);
    session::SetRules(next, m_rulesOf(next.Game.FileName));
  };
  run(open, FileHolds::Game);
}

bool Desk::recoverGame(const Situation& recovered) {
  const auto recover = [&](Situation& next) {
    next = recovered;
    session::SetRules(next, m_rulesOf(next.Game.FileName));
  };
  return run(recover, FileHolds::Other);
}

bool Desk::saveGameAs(const std::filesystem::path& file, session::Overwrite overwrite) {
  const auto save = [&](Situation& next) { session::SaveGameAs(next, file, overwrite); };
  return run(save, FileHolds::Game);
}

bool Desk::fileOrder(const std::string& text) {
  return run([&](Situation& next) { return session::FileOrder(next, text); });
}

void Desk::deleteOrder(int row) {
  run([&](Situation& next) { return session::DeleteOrder(next, row); });
}

int Desk::fileOrders(const std::vector<exchange::ReadLine>& lines) {
  int filed = 0;
  const auto file = [&](Situation& next) { filed = session::FileOrders(next, lines); };
  return run(file) ? filed : 0;
}

void Desk::resolve() {
  const auto comparing = m_view.compare ? session::Comparing::Yes : session::Comparing::No;
  run([&](Situation& next) {
    return session::Resolve(next, m_messages, session::Noting::Full, comparing);
  });
  if (now().Stopped) emit stopped();
}

void Desk::nextSeason() {
  run(session::NextSeason);
}

void Desk::undoSeason() {
  run([this](Situation& next) { return session::UndoSeason(next, m_messages); });
}

void Desk::setRules(session::Rules rules) {
  run([&](Situation& next) { session::SetRules(next, rules); });
}

void Desk::editSeason(const model::SeasonFacts& facts) {
  run([&](Situation& next) { session::EditSeason(next, facts); });
}

void Desk::setColours(const model::CountryTable& colours) {
  run([&](Situation& next) { session::SetColours(next, colours); });
}

void Desk::setEditing(session::Editing editing) {
  run([&](Situation& next) { session::SetEditing(next, editing); });
}

std::string Desk::edit(const session::PositionChange& change) {
  std::string refusal;
  run([&](Situation& next) {
    refusal = session::Edit(next, change);
    return refusal.empty();
  });
  return refusal;
}

void Desk::undoEdit() {
  run(session::UndoEdit);
}

void Desk::redoEdit() {
  run(session::RedoEdit);
}

void Desk::withdrawEdit() {
  run(session::WithdrawEdit);
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

bool Desk::run(const session::Command& command, FileHolds holds) {
  session::Effect effect{false, Changes::All};
  attempt(m_messages, [&] { effect = m_session.Run(command); });
  if (effect.Done && holds == FileHolds::Game) m_saved = game();
  if (effect.Done && holds == FileHolds::Other) m_saved.reset();
  // Also when the command failed: a check mark may already show what has not happened.
  emit changed(effect.Changed);
  return effect.Done;
}

void Desk::show(const View& next) {
  attempt(m_messages, [&] {
    m_draw(now(), next);
    m_view = next;
  });
  emit viewChanged();
}

}  // namespace orb::ui
