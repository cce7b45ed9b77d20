#include "session/session.h"

namespace orb::session {
namespace {

/// Notes and outcomes belong to the report, the stopped line to the lists, the steps of editing to
/// the position that they led to.
void KeepInStep(const Situation& before, Situation& next) {
  const int reportCount = next.Game.ReportLines.Count();
  next.Notes.resize(static_cast<std::size_t>(reportCount));
  if (reportCount == 0) {
    next.Outcomes.clear();
    next.Differences.clear();
    next.ByUsualRules = false;
  }
  if (!SameLists(before.Game, next.Game)) next.Stopped.reset();
  if (next.Editing == Editing::None || !next.Edits.LeadsTo(next.Game)) next.Edits.Clear();
}

}  // namespace

Effect Session::Run(const Command& command) {
  Situation next = now_;
  return command(next) ? TakeOver(next) : Decline(next);
}

Effect Session::TakeOver(Situation& next) {
  KeepInStep(now_, next);
  review_(next);
  const Changes changed = ChangesBetween(now_, next);
  now_ = std::move(next);
  return {true, changed};
}

Effect Session::Decline(Situation& abandoned) {
  if (now_.Stopped == abandoned.Stopped) return {};
  now_.Stopped = abandoned.Stopped;
  return {false, Changes::Orders};
}

}  // namespace orb::session
