#include "orders/parser.h"

#include "model/country.h"
#include "model/text.h"

#include <algorithm>

namespace orb::orders {
namespace {

constexpr std::string_view Filler = " (X) (X) (X) (X) (X) (X) (X) (X) (X) (X) (X) (X)";

std::string_view SecondPower(FieldCutter& fields, const OrderLine& order) {
  return fields.BracketBeforeBlank() ? std::string_view(order.Power) : fields.UpTo(' ');
}

void ParseSupport(FieldCutter& fields, OrderLine& order) {
  order.Power2 = SecondPower(fields, order);
  order.UnitType2 = fields.UpTo('(');
  order.Target = fields.UpTo(')');
  order.Kind2 = model::UpperCase(fields.UpTo(' '));
  if (order.Kind2 == "-") order.Target2 = fields.UpTo(' ');
}

void ParseConvoy(FieldCutter& fields, OrderLine& order) {
  order.Power2 = SecondPower(fields, order);
  order.UnitType2 = fields.UpTo('(');
  order.Target = fields.UpTo(')');
  order.Kind2 = fields.UpTo(' ');
  order.Target2 = fields.UpTo(' ');
}

void ParseOrder(OrderLine& order, std::string& work) {
  FieldCutter fields(order.Text, work);
  order.Power = fields.UpTo(' ');
  order.UnitType = fields.UpTo('(');
  order.Location = fields.UpTo(')');
  order.Kind = model::UpperCase(fields.UpTo(' '));
  if (IsMove(order)) order.Target = fields.UpTo(' ');
  if (IsSupport(order)) ParseSupport(fields, order);
  if (IsConvoy(order)) ParseConvoy(fields, order);
}

bool IsUnitType(std::string_view type) {
  return type == "F" || type == "A";
}

bool IsWater(std::string_view location) {
  return model::UpperCase(location) == location;
}

std::string_view SecondUnitFault(const model::Map& map, const OrderLine& order) {
  if (model::FindCountry(order.Power2) == 0) return "the other unit's power is unknown";
  if (!IsUnitType(order.UnitType2)) return "the other unit is neither A nor F";
  if (model::FindProvince(map, order.Target) == 0) return "the other unit's location is unknown";
  return {};
}

std::string_view SupportFault(const model::Map& map, const OrderLine& order) {
  if (const auto fault = SecondUnitFault(map, order); !fault.empty()) return fault;
  if (order.Kind2 == "HOLD") return {};
  if (order.Kind2 != "-") return "the supported unit neither moves nor holds";
  if (model::FindProvince(map, order.Target2) == 0) return "the supported move's aim is unknown";
  return {};
}

std::string_view ConvoyFault(const model::Map& map, const OrderLine& order) {
  if (order.UnitType != "F" || !IsWater(order.Location)) return "only a fleet at sea convoys";
  if (const auto fault = SecondUnitFault(map, order); !fault.empty()) return fault;
  if (order.UnitType2 != "A") return "only an army is convoyed";
  if (order.Kind2 != "-") return "the convoyed army does not move";
  if (model::FindProvince(map, order.Target2) == 0) return "the convoyed move's aim is unknown";
  return {};
}

}  // namespace

FieldCutter::FieldCutter(std::string_view text, std::string& work) {
  work.assign(text).append(Filler);
  rest_ = work;
}

std::string_view FieldCutter::UpTo(char separator) {
  const std::size_t end = std::min(rest_.find(separator), rest_.size());
  const std::string_view field = rest_.substr(0, end);
  rest_ = model::Trim(rest_.substr(std::min(end + 1, rest_.size())));
  return field;
}

bool FieldCutter::BracketBeforeBlank() const {
  return rest_.find('(') <= rest_.find(' ');
}

void SetOrderTexts(const std::vector<std::string>& lines, OrderTable& orders) {
  for (const std::string& line : lines) {
    OrderLine& order = orders.Append();
    order.Text = model::Trim(line);
    order.Active = true;
  }
}

void ParseOrders(OrderTable& orders) {
  std::string work;
  for (OrderLine& order : orders)
    ParseOrder(order, work);
}

std::string_view SyntaxFault(const model::Map& map, const OrderLine& order) {
  if (model::FindCountry(order.Power) == 0) return "the power is unknown";
  if (!IsUnitType(order.UnitType)) return "the unit is neither A nor F";
  if (model::FindProvince(map, order.Location) == 0) return "the unit's location is unknown";
  if (IsSupport(order)) return SupportFault(map, order);
  if (IsConvoy(order)) return ConvoyFault(map, order);
  if (order.Kind == "HOLD") return {};
  if (!IsMove(order)) return "the unit is told neither to move nor to hold, support or convoy";
  if (model::FindProvince(map, order.Target) == 0) return "the destination is unknown";
  return {};
}

bool CheckOrderSyntax(const model::Map& map, OrderTable& orders, model::Messages& messages) {
  for (OrderLine& order : orders) {
    if (SyntaxFault(map, order).empty()) continue;
    Reject(order, "syntax error");
    if (!messages.Warn(model::WarningText(order.Text, "syntax error."))) return false;
  }
  return true;
}

}  // namespace orb::orders
