#include "cli/suggestion.h"

#include <algorithm>
#include <cstddef>
#include <utility>
#include <vector>

namespace orb::cli {
namespace {

/// How many letters are missing, surplus, wrong or exchanged with their neighbour.
std::size_t Distance(std::string_view a, std::string_view b) {
  std::vector<std::size_t> beforeLast;
  std::vector<std::size_t> last;
  std::vector<std::size_t> row(b.size() + 1);
  for (std::size_t j = 0; j <= b.size(); ++j)
    row[j] = j;
  for (std::size_t i = 1; i <= a.size(); ++i) {
    beforeLast = std::move(last);
    last = row;
    row[0] = i;
    for (std::size_t j = 1; j <= b.size(); ++j) {
      const std::size_t wrong = a[i - 1] == b[j - 1] ? 0 : 1;
      row[j] = std::min({last[j] + 1, row[j - 1] + 1, last[j - 1] + wrong});
      if (i > 1 && j > 1 && a[i - 1] == b[j - 2] && a[i - 2] == b[j - 1]) {
        row[j] = std::min(row[j], beforeLast[j - 2] + 1);
      }
    }
  }
  return row[b.size()];
}

}  // namespace

std::string Suggestion(std::string_view written, std::span<const std::string_view> names) {
  // A third of the letters may be wrong: beyond that any name would be as good.
  std::size_t least = written.size() / 3 + 1;
  std::vector<std::string_view> nearest;
  for (const std::string_view name : names) {
    const bool isBegun = written.size() > 2 && name.starts_with(written);
    const std::size_t distance = isBegun ? 0 : Distance(written, name);
    if (distance > least || (distance == least && nearest.empty())) continue;
    if (distance < least) nearest.clear();
    least = distance;
    nearest.push_back(name);
  }
  if (nearest.size() != 1) return {};
  return std::string(" Did you mean \"").append(nearest[0]).append("\"?");
}

}  // namespace orb::cli
