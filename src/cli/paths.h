#pragma once

#include "cli/options.h"

#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

namespace orb::cli {

/// Reports and reasons that go to this path are printed like anything else.
constexpr std::string_view StandardOutput = "/dev/stdout";

/// The files of one game; empty where the command line asks for none.
struct GamePaths {
  std::string Game;  ///< as given
  std::filesystem::path Output;
  std::filesystem::path Orders;
  std::filesystem::path Report;
  std::filesystem::path Reasons;
  bool OrdersMayLack = false;  ///< in a directory of orders, a game without a file has no orders
};

/// Whether it is a device or a pipe, which is written to and never replaced.
bool IsDevice(const std::filesystem::path& path);

/// The files of every game. Throws UsageError where several games share a path that is no
/// directory, and where a file would be written twice or over another one that is read; a device
/// may be.
std::vector<GamePaths> PlanPaths(const CommandLine& line);

/// Refuses by a UsageError to write over a data file in the directory.
void CheckNoDataFile(const std::filesystem::path& output, const std::filesystem::path& data);

/// Where the data files lie. Throws UsageError when --data names no directory.
std::filesystem::path DataDirectory(const CommandLine& line);

}  // namespace orb::cli
