#pragma once

#include "model/game_state.h"
#include "orders/exchange/written_order.h"
#include "orders/order_line.h"

#include <optional>
#include <string>
#include <string_view>

namespace orb::exchange {

/// The stage whose orders a game takes.
OrderStage StageOf(const model::GameState& game);

/// The line of an order as the lists hold it: "FRA A(Par) - Bur", "ENG F(NTH) retreat NWG",
/// "ENG build F(Lon)". The power of a second unit is left out when it is the ordering one.
std::string FormatOrder(const orders::OrderLine& order, OrderStage stage);

/// The order of a line that has just this form, with its verbs in any case; nothing for others.
std::optional<orders::OrderLine> ReadExactLine(const model::Map& map, OrderStage stage,
                                               std::string_view line);

}  // namespace orb::exchange
