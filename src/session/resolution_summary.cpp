#include "session/resolution_summary.h"

#include <algorithm>
#include <cctype>

namespace orb::session {
namespace {

std::string Counted(std::ptrdiff_t count, std::string_view what) {
  std::string text = std::to_string(count);
  text.append(" ").append(what);
  return count == 1 ? text : text.append("s");
}

}  // namespace

std::string ResolutionSummary(const Situation& after, std::string_view stage, std::size_t first) {
  const auto begin =
      after.Outcomes.begin() + static_cast<std::ptrdiff_t>(std::min(first, after.Outcomes.size()));
  const auto succeeded = std::count_if(begin, after.Outcomes.end(), [](const auto& order) {
    return order.Outcome == orders::Outcome::Succeeded;
  });
  const auto failed = (after.Outcomes.end() - begin) - succeeded;
  std::string text(stage);
  if (!text.empty()) text[0] = static_cast<char>(std::toupper(static_cast<unsigned char>(text[0])));
  text.append(" resolved: ").append(Counted(succeeded, "order")).append(" succeeded, ");
  text.append(std::to_string(failed)).append(" failed");
  if (after.Game.Stage == model::Stage::Retreats) {
    std::ptrdiff_t dislodged = 0;
    for (const model::Unit& unit : after.Game.Units)
      dislodged += unit.Status == model::Dislodged ? 1 : 0;
    text.append("; ").append(Counted(dislodged, "unit")).append(" dislodged");
  }
  return text.append(".");
}

}  // namespace orb::session
