#include "orders/parser.h"

#include "model/country.h"
#include "text/strings.h"

#include <string_view>
#include <utility>

namespace orb::orders {
namespace {

std::int8_t PowerRow(std::string_view word) {
  return static_cast<std::int8_t>(model::FindCountry(word));
}

std::int16_t PlaceRow(const model::Map& map, std::string_view word) {
  return word.empty() ? std::int16_t{0} : static_cast<std::int16_t>(model::FindProvince(map, word));
}

/// Fills the order's fields from its text; `work` as in CutOrder.
void Parse(const model::Map& map, model::Stage stage, OrderLine& order, std::string& work) {
  const OrderWords words = CutOrder(order.Text, stage, work);
  order.Power = PowerRow(words.Power);
  order.UnitType = model::UnitTypeOf(words.UnitType);
  order.Location = PlaceRow(map, words.Location);
  order.Kind = words.Kind;
  order.Target = PlaceRow(map, words.Target);
  if (IsSupport(order) || IsConvoy(order)) {
    order.Power2 = PowerRow(words.Power2);
    order.UnitType2 = model::UnitTypeOf(words.UnitType2);
    order.Kind2 = words.Kind2;
    order.Target2 = PlaceRow(map, words.Target2);
  }
  order.Fault = FindSyntaxFault(map, words, stage);
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
