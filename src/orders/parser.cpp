#include "orders/parser.h"

#include "text/strings.h"

#include <string_view>
#include <utility>

namespace orb::orders {
namespace {

/// Fills the order's parts from its text; `work` as in CutOrder.
void Parse(const model::Map& map, model::Stage stage, OrderLine& order, std::string& work) {
  static_cast<OrderParts&>(order) = ReadParts(map, CutOrder(order.Text, stage, work), stage);
}

}  // namespace

void SetOrderTexts(std::vector<std::string> lines, OrderTable& orders) {
  for (std::string& line : lines) {
    const std::string_view trimmed = text::Trim(line);
    OrderLine& order = AppendOrder(orders);
    if (trimmed.size() == line.size()) {
      order.Text = std::move(line);
    } else {
      order.Text = trimmed;
    }
    order.Active = true;
  }
}

void ParseOrders(const model::Map& map, model::Stage stage, OrderTable& orders) {
  std::string work;
  for (OrderLine& order : orders)
    Parse(map, stage, order, work);
}

OrderLine ParseLine(const model::Map& map, model::Stage stage, std::string_view line) {
  OrderLine order;
  order.Text = text::Trim(line);
  std::string work;
  Parse(map, stage, order, work);
  return order;
}

bool IsWholeOrder(const model::Map& map, model::Stage stage, std::string_view line) {
  return ParseLine(map, stage, line).Fault == SyntaxFault::None;
}

std::string FaultText(const OrderLine& order, model::Stage stage) {
  std::string work;
  return FaultText(CutOrder(order.Text, stage, work), order.Fault);
}

bool CheckOrderSyntax(OrderTable& orders, Questions& questions) {
  for (int k = 1; k <= orders.Count(); ++k) {
    OrderLine& order = orders[k];
    if (order.Fault == SyntaxFault::None) continue;
    Reject(order, OrderResult::SyntaxError);
    if (!questions.GoOn(k, model::WarningText(order.Text, "syntax error."))) return false;
  }
  return true;
}

}  // namespace orb::orders
