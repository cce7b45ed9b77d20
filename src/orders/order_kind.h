#pragma once

#include "model/stage.h"

#include <cstdint>
#include <string_view>

namespace orb::orders {

/// What an order tells its unit or power to do; None: nothing that its stage knows.
enum class OrderKind : std::uint8_t {
  None,
  Move,
  Hold,
  Support,
  Convoy,
  Retreat,
  Disband,
  Build,
};

/// The kind of order that a word in capitals stands for in a stage.
OrderKind KindOf(std::string_view word, model::Stage stage);

/// "-", "HOLD", "S", "C", "RETREAT", "DISBAND" or "BUILD"; empty for None.
std::string_view KindWord(OrderKind kind);

}  // namespace orb::orders
