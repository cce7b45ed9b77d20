#pragma once

#include "orders/order_kind.h"
#include "orders/order_outcome.h"

#include <string_view>

// What other programs call things: docs/json.md lists the names.

namespace orb::json {

std::string_view NameOf(orders::OrderKind kind);
std::string_view NameOf(orders::Outcome outcome);

}  // namespace orb::json
