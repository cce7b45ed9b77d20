#include "session/session.h"

#include "session/queries.h"

#include <map>
#include <string>
#include <utility>

namespace orb::session {
namespace {

/// What is known of the moves belongs to the report, the stopped line to the lists.
void KeepInStep(const Situation& before, Situation& next) {
  const int reportCount = next.Game.ReportLines.Count();
  next.Notes.resize(static_cast<std::size_t>(reportCount));
  if (reportCount == 0) {
    next.Outcomes.clear();
    next.Differences.clear();
    next.BeforeMoves.reset();
    next.ByUsualRules = false;
  }
  if (!SameLists(before.Game, next.Game)) next.Stopped.reset();
}

/// What is no part of the course of the game stays as it is now.
void CarryOver(const Situation& now, Situation& next) {
  SetColours(next, now.Game.Countries);
  const bool sameStage = now.GameNumber == next.GameNumber && now.Game.Stage == next.Game.Stage;
  next.Editing = sameStage ? now.Editing : Editing::None;
}

}  // namespace

Effect Session::Run(const Command& command, StepName name) {
  Situation next = now_;
  return command(next) ? TakeOver(next, std::move(name)) : Decline(next);
}

Effect Session::TakeOver(Situation& next, StepName name) {
  KeepInStep(now_, next);
  review_(next);
  const bool couldUndo = CanUndoEdit();
  const bool couldRedo = CanRedoEdit();
  Changes changed = ChangesBetween(now_, next);
  const bool saved = next.Saved != now_.Saved && next.GameNumber == now_.GameNumber;
  const bool ended = next.Editing == Editing::None;
  std::swap(now_, next);
  if (!name.Text.empty() && changed != Changes::None) {
    history_.Record(std::move(name), std::move(next));
  }
  if (ended) editingSince_ = history_.NextNumber();
  if (saved) CarryFile();
  return {true, changed | EditingChanges(couldUndo, couldRedo)};
}

Effect Session::Decline(Situation& abandoned) {
  if (now_.Stopped == abandoned.Stopped) return {};
  now_.Stopped = abandoned.Stopped;
  return {false, Changes::Orders};
}

Effect Session::TakeBack() {
  return Go(Way::Back);
}

Effect Session::DoAgain() {
  return Go(Way::Forth);
}

Effect Session::Go(Way way) {
  const History::Step* step = way == Way::Back ? history_.Last() : history_.Next();
  if (step == nullptr) return {};
  Situation next = step->There;
  CarryOver(now_, next);
  review_(next);
  const bool couldUndo = CanUndoEdit();
  const bool couldRedo = CanRedoEdit();
  const Changes changed = ChangesBetween(now_, next);
  std::swap(now_, next);
  way == Way::Back ? history_.Back(std::move(next)) : history_.Forth(std::move(next));
  if (now_.Editing == Editing::None) editingSince_ = history_.NextNumber();
  return {true, changed | EditingChanges(couldUndo, couldRedo)};
}

Effect Session::WithdrawEdit() {
  if (!CanUndoEdit()) return {};
  const Effect effect = TakeBack();
  history_.DropNext();
  return effect;
}

bool Session::IsEdit(const History::Step* step) const {
  return now_.Editing != Editing::None && step != nullptr && step->Name.Kind == StepKind::Edit &&
         step->Number >= editingSince_;
}

Changes Session::EditingChanges(bool couldUndo, bool couldRedo) const {
  const bool same = couldUndo == CanUndoEdit() && couldRedo == CanRedoEdit();
  return same ? Changes::None : Changes::Editing;
}

/// What was just written is in the file for every step of this game, and for every other game that
/// has the same file.
void Session::CarryFile() {
  const std::string& file = now_.Game.FileName;
  // Each name is looked up once: many steps have the same, and a disk may be slow.
  std::map<std::string, bool> known{{"", false}};
  const auto isSame = [&](const std::string& other) {
    const auto [found, isNew] = known.try_emplace(other);
    if (isNew) found->second = IsSameFile(other, file);
    return found->second;
  };
  history_.ForEach([&](Situation& there) {
    if (there.GameNumber == now_.GameNumber) {
      there.Game.FileName = file;
      there.ReadOnly = now_.ReadOnly;
    } else if (!isSame(there.Game.FileName)) {
      return;
    }
    there.OwnFile = now_.OwnFile;
    there.Saved = now_.Saved;
  });
}

}  // namespace orb::session
