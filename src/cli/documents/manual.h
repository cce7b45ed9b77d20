#pragma once

#include <string>

namespace orb::cli {

/// The sections of the manual page that tell of every command and its options, in roff.
std::string ManualSections();

}  // namespace orb::cli
