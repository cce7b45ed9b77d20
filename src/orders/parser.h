#pragma once

#include "model/map.h"
#include "orders/order_line.h"
#include "orders/questions.h"

#include <string>
#include <string_view>
#include <vector>

namespace orb::orders {

/// Fills a fresh table of orders from list lines: each order's Text is its line, trimmed, and it is
/// active; all else is empty. Throws IndexOutOfRange beyond 80 lines.
void SetOrderTexts(std::vector<std::string> lines, OrderTable& orders);

/// Reads the parts of every order from its text, as far as they name something, and finds the first
/// rule of the stage's text form that it breaks.
void ParseOrders(const model::Map& map, model::Stage stage, OrderTable& orders);

/// The same for a single line.
OrderLine ParseLine(const model::Map& map, model::Stage stage, std::string_view line);

/// Whether the line has one of the forms of the stage's orders.
bool IsWholeOrder(const model::Map& map, model::Stage stage, std::string_view line);

/// The rule of the text form that a read order breaks, as words for the user that quote the
/// writer's own; empty for none.
std::string FaultText(const OrderLine& order, model::Stage stage);

/// Rejects every order that breaks the text form and warns about it; false when the user does not
/// want to continue.
bool CheckOrderSyntax(OrderTable& orders, Questions& questions);

}  // namespace orb::orders
