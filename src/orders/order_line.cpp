#include "orders/order_line.h"

#include "model/errors.h"
#include "model/lookups.h"

namespace orb::orders {

std::string UnitName(const model::Map& map, const OrderLine& order) {
  std::string name(model::PowerName(order.Power));
  name.append(" ").append(model::UnitTypeName(order.UnitType));
  return name.append("(").append(model::LocationName(map, order.Location)).append(")");
}

std::string TooManyOrders() {
  return "too many orders: no more than " + std::to_string(OrderBound) +
         " can be resolved, one for each unit without an order included";
}

OrderLine& AppendOrder(OrderTable& orders) {
  if (orders.Count() == OrderBound) {
    std::string sentence = TooManyOrders();
    sentence.front() = 'T';
    throw model::IndexOutOfRange(sentence.append("."));
  }
  return orders.Append();
}

void Reject(OrderLine& order, OrderResult result) {
  order.Result = result;
  if (order.Rejection == OrderResult::None) order.Rejection = result;
  order.Failed = true;
  order.Active = false;
}

}  // namespace orb::orders
