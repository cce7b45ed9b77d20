#pragma once

#include "session/changes.h"
#include "session/commands.h"
#include "session/history.h"

#include <concepts>
#include <cstdint>
#include <functional>
#include <utility>

namespace orb::session {

/// A function of commands.h with its arguments, to be run by a session: it returns whether it was
/// done, or nothing.
class Command {
 public:
  template <std::invocable<Situation&> Work>
  Command(Work work) : work_(Whether(std::move(work))) {}

  bool operator()(Situation& situation) const { return work_(situation); }

 private:
  template <class Work>
  static std::function<bool(Situation&)> Whether(Work work) {
    if constexpr (std::predicate<Work, Situation&>) {
      return work;
    } else {
      return [work](Situation& situation) {
        std::invoke(work, situation);
        return true;
      };
    }
  }

  std::function<bool(Situation&)> work_;
};

/// What became of a command.
struct Effect {
  bool Done = false;  ///< false: it was declined or had nothing to do
  Changes Changed = Changes::None;
};

/// A game that is worked on. A command works on a copy, which takes the situation's place whole or
/// not at all: a throw or a declined command leaves everything as it was, except for the line at
/// which a resolution stopped. Every command with a name is a step that can be taken back and done
/// again.
class Session {
 public:
  explicit Session(Situation start) : now_(std::move(start)) {}

  const Situation& Now() const { return now_; }

  /// Called with each new situation before it is taken over; a throw abandons the command.
  void SetReview(std::function<void(const Situation&)> review) { review_ = std::move(review); }

  /// Runs a command, and keeps in step what depends on the game. Passes on what it throws.
  Effect Run(const Command& command, StepName name = {});

  /// Goes back to where the last step began, or forth to where it led. The game's file goes along,
  /// with what is known to be in it now; the powers' colours and what is edited stay. Nothing is
  /// done where there is no such step.
  Effect TakeBack();
  Effect DoAgain();

  /// Takes the last step back as if it had never been; nothing where it was no edit.
  Effect WithdrawEdit();

  const History& Steps() const { return history_; }

  /// Whether the step that would be taken back, or done again, belongs to the editing under way.
  bool CanUndoEdit() const { return IsEdit(history_.Last()); }
  bool CanRedoEdit() const { return IsEdit(history_.Next()); }

 private:
  enum class Way : std::uint8_t { Back, Forth };

  Effect TakeOver(Situation& next, StepName name);
  Effect Decline(Situation& abandoned);
  Effect Go(Way way);
  bool IsEdit(const History::Step* step) const;
  Changes EditingChanges(bool couldUndo, bool couldRedo) const;
  void CarryFile();

  Situation now_;
  History history_;
  int editingSince_ = 0;  ///< the number of the first step that the editing could record
  std::function<void(const Situation&)> review_ = [](const Situation&) {};
};

}  // namespace orb::session
