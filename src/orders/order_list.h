#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace orb::orders {

/// Files a typed order at the end of a list of order lines. The last line that begins like it, up
/// to and including its first ")", is the unit's previous order and is removed. False, the list
/// unchanged, for a text without a ")".
bool FileOrder(std::vector<std::string>& list, std::string_view text);

/// Removes the line at this position, counted from 0; false when there is none.
bool DeleteOrder(std::vector<std::string>& list, int position);

}  // namespace orb::orders
