#pragma once

#include "session/changes.h"
#include "session/commands.h"

#include <concepts>
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
/// which a resolution stopped.
class Session {
 public:
  explicit Session(Situation start) : now_(std::move(start)) {}

  const Situation& Now() const { return now_; }

  /// Called with each new situation before it is taken over; a throw abandons the command.
  void SetReview(std::function<void(const Situation&)> review) { review_ = std::move(review); }

  /// Runs a command, and keeps in step what depends on the game. Passes on what it throws.
  Effect Run(const Command& command);

 private:
  Effect TakeOver(Situation& next);
  Effect Decline(Situation& abandoned);

  Situation now_;
  std::function<void(const Situation&)> review_ = [](const Situation&) {};
};

}  // namespace orb::session
