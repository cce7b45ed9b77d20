#pragma once

#include "cli/console.h"
#include "cli/options.h"
#include "cli/paths.h"
#include "model/game_state.h"

#include <filesystem>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

namespace orb::cli {

/// Does the work on one game that was read; false when it was abandoned, nothing written.
using GameWork = std::function<bool(model::GameState& game, const GamePaths& paths)>;

/// Reads every game of the plan and does the work on it. A game that cannot be read, or whose work
/// throws, is refused with a line on standard error; the others are still done. The exit status.
int ForEachGame(const CommandLine& line, Console& console, const std::vector<GamePaths>& plan,
                const GameWork& work);

/// Does something that may throw; then a line on standard error says why. Whether it was done.
bool Attempt(Console& console, std::string_view subject, const std::function<bool()>& work);

/// Lines of text, each ended by LF.
std::string JoinLines(const std::vector<std::string>& lines);

/// Replaces a file whole or not at all; a device or pipe is written to. Throws FileError.
void WriteText(const std::filesystem::path& path, std::string_view text);

/// Prints what belongs to one game; of several each is headed by "== " and the game's path.
void PrintUnderHeading(Console& console, const std::vector<GamePaths>& plan, const GamePaths& paths,
                       std::string_view text);

}  // namespace orb::cli
