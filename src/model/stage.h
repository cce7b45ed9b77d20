#pragma once

#include <cstdint>
#include <string_view>

namespace orb::model {

/// How far a season has come. A file may hold a text that names none of the four stages; such a
/// game can be shown, edited and saved, but has no orders and nothing to resolve.
enum class Stage : std::uint8_t { Moves, Retreats, Adjustments, Finished, Other };

/// The stage that a text names exactly: "moves", "retreats", "adjustments" or "finished".
Stage StageOf(std::string_view text);

/// The text of one of the four stages, as files and reports have it; empty for Other.
std::string_view StageName(Stage stage);

/// Whether the stage has a list of orders, which can be resolved.
constexpr bool HasOrders(Stage stage) {
  return stage == Stage::Moves || stage == Stage::Retreats || stage == Stage::Adjustments;
}

}  // namespace orb::model
