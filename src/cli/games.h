#pragma once

#include "json/answers.h"

#include "cli/console.h"
#include "cli/options.h"
#include "cli/paths.h"
#include "session/situation.h"

#include <filesystem>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

namespace orb::cli {

/// A game of the plan while a command works on it. Messages are shown under its name; --yes answers
/// its questions.
struct GameAtWork {
  session::Situation& Situation;
  const GamePaths& Paths;
  ConsoleMessages Messages;
  bool IsTold = false;  ///< with --json: its object was printed
};

/// Does the work on one game that was read; false when it was abandoned, nothing written.
using GameWork = std::function<bool(GameAtWork& at)>;

/// What the object begins with that --json prints for a game.
json::Heading HeadingOf(const CommandLine& line, const GameAtWork& at);

/// Prints the object of a game.
void Tell(Console& console, GameAtWork& at, std::string_view json);

/// Reads every game of the plan and does the work on it. A game that cannot be read, or whose work
/// throws, is refused with a line on standard error; the others are still done. With --json a game
/// that nothing was told of gets an object, too. The exit status.
int ForEachGame(const CommandLine& line, Console& console, const std::vector<GamePaths>& plan,
                const GameWork& work);

/// Does something that may throw; if it does, a line on standard error says why. Returns whether it
/// was done. A UsageError passes through, since it is no fault of the one game.
bool Attempt(Console& console, std::string_view subject, const std::function<bool()>& work);

/// Says of a game that was abandoned at a question what that means and how it would have gone on;
/// `done` is what has not been done: "resolved".
void SayAbandoned(Console& console, const GameAtWork& at, std::string_view done);

}  // namespace orb::cli
