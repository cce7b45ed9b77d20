#pragma once

#include "cli/options.h"

#include <span>
#include <string>

namespace orb::cli {

/// Reads the arguments (without the program's name). Values follow their option or stand behind
/// "=", or right behind a letter; "--" ends the options; "help" before a command asks for its help.
/// Throws UsageError for anything that no command knows, and for missing or surplus arguments
/// unless help is asked for.
CommandLine ParseCommandLine(std::span<const std::string> arguments);

}  // namespace orb::cli
