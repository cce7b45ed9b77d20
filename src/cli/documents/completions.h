#pragma once

#include "cli/command.h"

#include <string>
#include <string_view>
#include <vector>

// Scripts by which shells complete the command lines of orbctl: commands, their options and the
// values of those. All are made from the tables of commands and options.

namespace orb::cli {

/// The script for bash.
std::string BashCompletion();

/// The script for zsh.
std::string ZshCompletion();

/// The script for fish.
std::string FishCompletion();

// What the three have in common.

/// The spellings of an option that are not empty.
std::vector<std::string_view> Spellings(const Option& option);

/// The commands, "help" among them, with a separator between them.
std::string CommandNames(std::string_view separator);

/// A text between apostrophes, as all three shells read it.
std::string Quoted(std::string_view text);

/// Whether the value of an option is the path of a file.
bool TakesFile(const Option& option);

}  // namespace orb::cli
