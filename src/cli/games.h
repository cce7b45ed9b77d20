#pragma once

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
};

/// Does the work on one game that was read; false when it was abandoned, nothing written.
using GameWork = std::function<bool(GameAtWork& at)>;

/// Reads every game of the plan and does the work on it. A game that cannot be read, or whose work
/// throws, is refused with a line on standard error; the others are still done. The exit status.
int ForEachGame(const CommandLine& line, Console& console, const std::vector<GamePaths>& plan,
                const GameWork& work);

/// Does something that may throw; if it does, a line on standard error says why. Returns whether it
/// was done. A UsageError passes through, since it is no fault of the one game.
bool Attempt(Console& console, std::string_view subject, const std::function<bool()>& work);

/// Replaces a file whole or not at all; a device or pipe is written to. Throws FileError.
void WriteText(const std::filesystem::path& path, std::string_view text);

/// Prints what belongs to one game; of several each is headed by "== " and the game's path.
void PrintUnderHeading(Console& console, const std::vector<GamePaths>& plan, const GamePaths& paths,
                       std::string_view text);

}  // namespace orb::cli
