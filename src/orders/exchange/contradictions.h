#pragma once

#include "model/stage.h"
#include "orders/exchange/surroundings.h"

#include <string_view>
#include <vector>

namespace orb::exchange {

/// The part of an order that tells what it is for: its unit; of a build its power and its place,
/// where only one unit can be built. Different orders with the same subject contradict each other.
std::string SubjectOf(std::string_view order, model::Stage stage);

/// Holds the orders of a text against each other and against what stands around them, and makes
/// those doubtful that the text itself speaks against. `around` has one entry a line. Of two orders
/// for one unit the later one holds if the words between them say so; an answer always holds
/// against what it quotes. `power`: the abbreviation of the power whose orders are wanted, or
/// empty.
void WeighOrders(std::vector<ReadLine>& lines, const std::vector<Surroundings>& around,
                 model::Stage stage, std::string_view power);

}  // namespace orb::exchange
