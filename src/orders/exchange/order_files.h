#pragma once

#include "model/game_state.h"
#include "orders/exchange/read_orders.h"

#include <string>
#include <string_view>
#include <vector>

namespace orb::exchange {

/// The text that a file of orders holds, in UTF-8 or Windows-1252: UTF-16 with its byte order mark
/// is converted. Throws FileError, naming the file, for what is no such text.
std::string OrdersFileText(std::string bytes, const std::string& fileName);

/// Files what is surely meant into the list of the game's stage, each line by the rule of a typed
/// one. How many were filed. Doubtful and unclear lines are left out.
int FileOrders(model::GameState& game, const std::vector<ReadLine>& lines);

/// Makes doubtful orders sure ones, as whoever looked at them consents.
void AcceptDoubtful(std::vector<ReadLine>& lines);

/// The power that the text names first in a heading, or that all its orders are of; else empty.
std::string PowerOf(const std::vector<ReadLine>& lines);

/// The lines of the list of the game's stage as the text of an orders file, each ended by CR LF.
std::string OrdersText(const model::GameState& game);

/// The name proposed for an orders file: the season's first letter, two digits of the year, what
/// the orders are: "s01_orders.txt", "a01_retreats.txt", "a01_adjustments.txt".
std::string ProposedOrdersFile(const model::GameState& game);

}  // namespace orb::exchange
