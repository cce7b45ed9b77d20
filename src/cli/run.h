#pragma once

#include "cli/console.h"

#include <ostream>
#include <span>
#include <string>

namespace orb::cli {

/// Runs one command line (the arguments without the program's name) and gives the exit status:
/// 0 every game done, 1 at least one abandoned or refused, 2 the command line is wrong. Output is
/// 8-bit text, byte for byte, unless a terminal or the command line has it in UTF-8.
int Run(std::span<const std::string> arguments, std::ostream& out, std::ostream& err,
        const Terminals& terminals = {});

}  // namespace orb::cli
