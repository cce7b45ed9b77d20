#pragma once

#include "cli/options.h"
#include "model/files.h"

#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

namespace orb::cli {

/// What goes to these paths is printed like anything else.
constexpr std::string_view StandardOutput = "/dev/stdout";
constexpr std::string_view StandardError = "/dev/stderr";

/// The files of one game; empty where the command line asks for none.
struct GamePaths {
  std::string Game;  ///< as given
  std::filesystem::path Output;
  std::filesystem::path Orders;
  std::filesystem::path Report;
  std::filesystem::path Reasons;
  bool OrdersMayLack = false;  ///< in a directory of orders, a game without a file has no orders
  bool HasHeading = false;     ///< there are several games: what is printed says of which it is
  model::Existing Existing = model::Existing::Replaced;  ///< what becomes of files written over
};

/// Whether it is one of the paths that stand for the streams of the program itself.
bool IsStream(const std::filesystem::path& path);

/// Whether it is a device, a pipe or an open file, which is written to and never replaced.
bool IsDevice(const std::filesystem::path& path);

/// Adds the games that --files-from lists to those of the line. Throws FileError.
void AddListedGames(CommandLine& line);

/// The files of every game. Throws UsageError where several games share a path that is no
/// directory, and where a file would be written twice or over another one that is read; a device
/// may be.
std::vector<GamePaths> PlanPaths(const CommandLine& line);

/// The same for a command that makes one file of all games; that file is no game's own and may lie
/// in no directory of theirs. Throws UsageError also where it is one of the games.
std::vector<GamePaths> PlanOneOutput(const CommandLine& line);

/// Refuses by a UsageError to write over a data file in the directory.
void CheckNoDataFile(const std::filesystem::path& output, const std::filesystem::path& data);

/// Where the data files lie. Throws UsageError when --data names no directory.
std::filesystem::path DataDirectory(const CommandLine& line);

}  // namespace orb::cli
