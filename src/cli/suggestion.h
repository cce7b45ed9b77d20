#pragma once

#include <span>
#include <string>
#include <string_view>

namespace orb::cli {

/// " Did you mean \"resolve\"?" where just one of the names is near to what was written, by its
/// first letters or but for a slip of the pen; else empty.
std::string Suggestion(std::string_view written, std::span<const std::string_view> names);

}  // namespace orb::cli
