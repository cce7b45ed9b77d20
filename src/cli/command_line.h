#pragma once

#include "cli/command.h"
#include "cli/options.h"

#include <span>
#include <string>

namespace orb::cli {

/// Reads the arguments (without the program's name). Values follow their option or stand behind
/// "="; "--" ends the options. Throws UsageError for anything that no command knows, and for
/// missing or surplus arguments unless help is asked for.
CommandLine ParseCommandLine(std::span<const std::string> arguments,
                             std::span<const Command* const> commands);

}  // namespace orb::cli
