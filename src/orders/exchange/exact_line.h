#pragma once

#include "model/game_state.h"
#include "orders/exchange/plain_order.h"
#include "orders/exchange/written_order.h"

#include <optional>
#include <string>
#include <string_view>

namespace orb::exchange {

/// The line of an order as the lists hold it: "FRA A(Par) - Bur", "ENG F(NTH) retreat NWG",
/// "ENG build F(Lon)". The power of a second unit is left out when it is the ordering one.
std::string FormatOrder(const PlainOrder& order, model::Stage stage);

/// The order of a line that has just this form, with its verbs in any case; nothing for others.
std::optional<PlainOrder> ReadExactLine(const model::Map& map, model::Stage stage,
                                        std::string_view line);

}  // namespace orb::exchange
