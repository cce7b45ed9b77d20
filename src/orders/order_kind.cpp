#include "orders/order_kind.h"

#include <algorithm>
#include <array>

namespace orb::orders {
namespace {

/// In the order of the enumerators.
constexpr std::array<std::string_view, 8> Words = {"",  "-",       "HOLD",    "S",
                                                   "C", "RETREAT", "DISBAND", "BUILD"};

bool IsKindOf(OrderKind kind, model::Stage stage) {
  switch (stage) {
    case model::Stage::Moves:
      return kind >= OrderKind::Move && kind <= OrderKind::Convoy;
    case model::Stage::Retreats:
      return kind == OrderKind::Retreat || kind == OrderKind::Disband;
    case model::Stage::Adjustments:
      return kind == OrderKind::Build || kind == OrderKind::Disband;
    default:
      return false;
  }
}

}  // namespace

OrderKind KindOf(std::string_view word, model::Stage stage) {
  const auto* const found = std::find(Words.begin(), Words.end(), word);
  if (found == Words.end()) return OrderKind::None;
  const auto kind = static_cast<OrderKind>(found - Words.begin());
  return IsKindOf(kind, stage) ? kind : OrderKind::None;
}

std::string_view KindWord(OrderKind kind) {
  return Words[static_cast<std::size_t>(kind)];
}

}  // namespace orb::orders
