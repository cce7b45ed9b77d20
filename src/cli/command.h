#pragma once

#include "cli/options.h"
#include "session/rules.h"
#include "settings/map_options.h"

#include <cstdint>
#include <span>
#include <string>
#include <string_view>

namespace orb::cli {

class Console;

/// How many GAME arguments a command takes; OneAndOrder: a game, then the text of an order.
enum class Games : std::uint8_t { None, One, Two, Several, OneAndOrder };

/// A command line to learn from.
struct Example {
  std::string_view What;  ///< what it does
  std::string_view Line;  ///< as it is typed, without the program's name
};

/// One command of the program: a row of the table that help, manual pages and completions come
/// from. Each lives in a source file of its own; commands.cpp lists them.
struct Command {
  std::string_view Name = {};
  std::string_view Summary = {};
  Games Takes = Games::Several;
  std::span<const OptionId> Options = {};  ///< those it knows in addition to those common to all
  std::span<const Example> Examples = {};
  std::string_view Undrawn = {};         ///< what the help adds where no maps can be drawn
  std::string_view OutputName = "PATH";  ///< what -o names: "GAME", "PICTURE"; PATH: or a directory

  /// Carries it out and returns the exit status. Throws UsageError when the command line is wrong;
  /// nothing has been done then.
  int (*Execute)(const CommandLine& line, Console& console) = nullptr;
};

/// Whether the command takes the option, those common to all included.
bool Knows(const Command& command, OptionId id);

/// All commands, in the order of the help.
std::span<const Command* const> AllCommands();

/// The abbreviation of the power that the command line names; empty without the option. Throws
/// UsageError.
std::string PowerOf(const CommandLine& line);

/// The mode of the map that the command line chooses, or else the usual one. Throws UsageError.
settings::MapMode ModeOf(const CommandLine& line, std::string_view usual);

/// The rules that the command line chooses; ORB's own without the option. Throws UsageError.
session::Rules RulesOf(const CommandLine& line);

}  // namespace orb::cli
