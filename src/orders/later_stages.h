#pragma once

#include "model/map.h"
#include "orders/order_line.h"
#include "orders/syntax_fault.h"

#include <string>

namespace orb::orders {

// An order line of the stages after the moves; the verb may be in any case:
//   retreat     POWER TYPE(LOC) RETREAT DEST
//   disband     POWER TYPE(LOC) DISBAND        in the retreats stage
//   build       POWER BUILD TYPE(LOC)          the power may be in any case
//   disband     POWER DISBAND TYPE(LOC)        likewise, in the adjustments stage

/// Fills the fields of an order of the retreats stage from its text; `work` as in FieldCutter.
void ParseRetreat(OrderLine& order, std::string& work);

/// Fills the fields of an order of the adjustments stage from its text; `work` as in FieldCutter.
void ParseAdjustment(OrderLine& order, std::string& work);

/// The first rule of the text form that an order of the retreats stage breaks.
SyntaxFault FindRetreatFault(const model::Map& map, const OrderLine& order);

/// The first rule of the text form that an order of the adjustments stage breaks.
SyntaxFault FindAdjustmentFault(const model::Map& map, const OrderLine& order);

}  // namespace orb::orders
