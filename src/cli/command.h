#pragma once

#include "cli/options.h"
#include "session/rules.h"

#include <span>
#include <string_view>

namespace orb::cli {

class Console;

/// How many GAME arguments a command takes; OneAndOrder: a game, then the text of an order.
enum class Games { None, One, Several, OneAndOrder };

/// One command of the program. Each lives in a source file of its own; the table in run.cpp gives
/// the order in which the help lists them.
struct Command {
  std::string_view Name;
  std::string_view Summary;
  Games Takes = Games::Several;
  std::span<const OptionId> Options;  ///< those it knows in addition to those common to all

  /// Carries it out and returns the exit status. Throws UsageError when the command line is wrong;
  /// nothing has been done then.
  int (*Execute)(const CommandLine& line, Console& console) = nullptr;
};

/// The rules that the command line chooses; ORB's own without the option. Throws UsageError.
session::Rules RulesOf(const CommandLine& line);

extern const Command NewCommand;
extern const Command ResolveCommand;
extern const Command NextCommand;
extern const Command UndoCommand;
extern const Command CheckCommand;
extern const Command WhatIfCommand;
extern const Command ShowCommand;
extern const Command MapCommand;

}  // namespace orb::cli
