#pragma once

#include "session/situation.h"

#include <cstddef>
#include <cstdint>
#include <deque>
#include <functional>
#include <string>
#include <utility>

namespace orb::session {

/// What kind of step a command is.
enum class StepKind : std::uint8_t {
  Plain,
  Edit,     ///< a change of the position by hand
  Another,  ///< another game takes the place of this one
};

/// How a command is told of where it can be taken back: "Resolve moves". Without a name it is no
/// step: it changes nothing that belongs to the course of the game.
struct StepName {
  std::string Text = {};
  StepKind Kind = StepKind::Plain;
};

/// The steps by which a game came to where it is, and those that were taken back. Each keeps the
/// whole situation on its other side; what takes too much memory is forgotten, the oldest first.
class History {
 public:
  struct Step {
    StepName Name;
    int Number = 0;        ///< counts all steps that were ever recorded
    Situation There;       ///< before it, or behind it where it was taken back
    std::size_t Size = 0;  ///< of that, in bytes
  };

  /// All steps together hold no more bytes than this, apart from the last one.
  static constexpr std::size_t DefaultBound = 32'000'000;

  explicit History(std::size_t bound = DefaultBound) : bound_(bound) {}

  /// A step was taken from there. What was taken back before cannot be done again any more.
  void Record(StepName name, Situation before);

  /// The step that can be taken back, or done again; null for none.
  const Step* Last() const { return past_.empty() ? nullptr : &past_.back(); }
  const Step* Next() const { return future_.empty() ? nullptr : &future_.back(); }

  /// The last step is taken back, or the next one done again; there must be one. The present
  /// situation takes the place of the one that its step keeps.
  void Back(Situation present) { Move(past_, future_, std::move(present)); }
  void Forth(Situation present) { Move(future_, past_, std::move(present)); }

  /// Forgets the step that would be done again next.
  void DropNext() { future_.pop_back(); }

  /// The number that the next recorded step gets.
  int NextNumber() const { return number_; }

  /// Calls a function with every situation that a step keeps.
  void ForEach(const std::function<void(Situation&)>& change);

  /// The latest step at which another game took the place of one with unsaved work; null for none.
  const Step* LeftBehind() const;

 private:
  using Steps = std::deque<Step>;

  static void Move(Steps& from, Steps& to, Situation present);

  Steps past_;
  Steps future_;  ///< the last one is the next to be done again
  int number_ = 0;
  std::size_t bound_;
};

}  // namespace orb::session
