#include "model/stage.h"

#include <algorithm>
#include <array>

namespace orb::model {
namespace {

/// In the order of the enumerators.
constexpr std::array<std::string_view, 4> Names = {"moves", "retreats", "adjustments", "finished"};

}  // namespace

Stage StageOf(std::string_view text) {
  const auto* const found = std::find(Names.begin(), Names.end(), text);
  return static_cast<Stage>(found - Names.begin());
}

std::string_view StageName(Stage stage) {
  const auto row = static_cast<std::size_t>(stage);
  return row < Names.size() ? Names[row] : std::string_view{};
}

}  // namespace orb::model
