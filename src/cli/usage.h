#pragma once

#include "cli/command.h"

#include <string>
#include <vector>

namespace orb::cli {

// What help and manual page say of a command and its options, before either gives it its form.

/// The line's parts behind "orbctl COMMAND", each of which stays whole: "[--orders PATH]".
std::vector<std::string> UsageParts(const Command& command);

/// The options that the help of a command explains, in the order of the table.
std::vector<const Option*> OptionsOf(const Command& command);

/// The spellings of an option with what stands for its value: "-o, --output PATH".
std::string Spelled(const Command& command, const Option& option);

/// What it means for this command.
std::string_view MeaningOf(const Command& command, const Option& option);

}  // namespace orb::cli
