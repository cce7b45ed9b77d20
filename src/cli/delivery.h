#pragma once

#include "cli/console.h"
#include "cli/paths.h"
#include "model/game_state.h"
#include "session/situation.h"

#include <filesystem>
#include <string_view>

namespace orb::cli {

// What a command makes on its way to where the command line wants it. A file is replaced whole or
// not at all, or kept where it exists and --no-clobber is given; a stream, a device or a pipe is
// written to. All throw FileError.

/// Writes a text, in the encoding that the user asks for.
void DeliverText(Console& console, const std::filesystem::path& path, std::string_view text,
                 model::Existing existing);

/// Writes the bytes of a picture or of another file.
void DeliverBytes(Console& console, const std::filesystem::path& path, std::string_view bytes,
                  model::Existing existing);

/// Saves a game under its output's name.
void DeliverGame(Console& console, session::Situation& situation, const GamePaths& paths);

/// Throws where a file exists that would have to be left as it is: before anything is done.
void ExpectNothingToKeep(const GamePaths& paths);

/// Prints what belongs to one game: where there are several, "== " and its path first.
void PrintUnderHeading(Console& console, const GamePaths& paths, std::string_view text);

/// The heading alone; nothing where there is one game.
void PrintHeading(Console& console, const GamePaths& paths);

}  // namespace orb::cli
