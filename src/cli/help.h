#pragma once

#include "cli/command.h"

#include <string>

namespace orb::cli {

/// What the program is for and which commands and options there are.
std::string ProgramHelp();

/// The form of a command's line, what the command does, what its options mean, and examples.
std::string CommandHelp(const Command& command);

}  // namespace orb::cli
