#include "orders/order_line.h"

namespace orb::orders {

void Reject(OrderLine& order, std::string_view result) {
  order.Result = result;
  order.Failed = true;
  order.Active = false;
}

}  // namespace orb::orders
