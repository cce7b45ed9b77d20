#pragma once

#include "cli/command.h"

#include <span>
#include <string>

namespace orb::cli {

/// What the program is for and which commands and options there are.
std::string ProgramHelp(std::span<const Command* const> commands);

/// The form of a command's line, what the command does and what its options mean.
std::string CommandHelp(const Command& command);

}  // namespace orb::cli
