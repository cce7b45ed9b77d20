#include "orders/parser.h"

#include "model/country.h"
#include "text/strings.h"

#include <algorithm>
#include <utility>

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
  order.Kind2 = text::UpperCase(fields.UpTo(' '));
  if (order.Kind2 == "-") order.Target2 = fields.UpTo(' ');
}

void ParseConvoy(FieldCutter& fields, OrderLine& order) {
  order.Power2 = SecondPower(fields, order);
  order.UnitType2 = fields.UpTo('(');
  order.Target = fields.UpTo(')');
  order.Kind2 = fields.UpTo(' ');
  order.Target2 = fields.UpTo(' ');
}

bool IsUnitType(std::string_view type) {
  return type == "F" || type == "A";
}

bool IsWater(std::string_view location) {
  return text::UpperCase(location) == location;
}

SyntaxFault SecondUnitFault(const model::Map& map, const OrderLine& order) {
  if (model::FindCountry(order.Power2) == 0) return SyntaxFault::OtherPower;
  if (!IsUnitType(order.UnitType2)) return SyntaxFault::OtherUnitType;
  if (model::FindProvince(map, order.Target) == 0) return SyntaxFault::OtherLocation;
  return SyntaxFault::None;
}

SyntaxFault SupportFault(const model::Map& map, const OrderLine& order) {
  if (const auto fault = SecondUnitFault(map, order); fault != SyntaxFault::None) return fault;
  if (order.Kind2 == "HOLD") return SyntaxFault::None;
  if (order.Kind2 != "-") return SyntaxFault::OtherVerb;
  if (model::FindProvince(map, order.Target2) == 0) return SyntaxFault::OtherDestination;
  return SyntaxFault::None;
}

SyntaxFault ConvoyFault(const model::Map& map, const OrderLine& order) {
  if (order.UnitType != "F" || !IsWater(order.Location)) return SyntaxFault::FleetInland;
  if (const auto fault = SecondUnitFault(map, order); fault != SyntaxFault::None) return fault;
  if (order.UnitType2 != "A") return SyntaxFault::FleetCarried;
  if (order.Kind2 != "-") return SyntaxFault::ArmyStays;
  if (model::FindProvince(map, order.Target2) == 0) return SyntaxFault::OtherDestination;
  return SyntaxFault::None;
}

}  // namespace

FieldCutter::FieldCutter(std::string_view text, std::string& work) {
  work.assign(text).append(Filler);
  rest_ = work;
}

std::string_view FieldCutter::UpTo(char separator) {
  const std::size_t end = std::min(rest_.find(separator), rest_.size());
  const std::string_view field = rest_.substr(0, end);
  rest_ = text::Trim(rest_.substr(std::min(end + 1, rest_.size())));
  return field;
}

bool FieldCutter::BracketBeforeBlank() const {
  return rest_.find('(') <= rest_.find(' ');
}

void SetOrderTexts(std::vector<std::string> lines, OrderTable& orders) {
  for (std::string& line : lines) {
    const std::string_view trimmed = text::Trim(line);
    OrderLine& order = orders.Append();
    if (trimmed.size() == line.size()) {
      order.Text = std::move(line);
    } else {
      order.Text = trimmed;
    }
    order.Active = true;
  }
}

void ParseOrder(OrderLine& order, std::string& work) {
  FieldCutter fields(order.Text, work);
  order.Power = fields.UpTo(' ');
  order.UnitType = fields.UpTo('(');
  order.Location = fields.UpTo(')');
  order.Kind = text::UpperCase(fields.UpTo(' '));
  if (IsMove(order)) order.Target = fields.UpTo(' ');
  if (IsSupport(order)) ParseSupport(fields, order);
  if (IsConvoy(order)) ParseConvoy(fields, order);
}

void ParseOrders(OrderTable& orders) {
  std::string work;
  for (OrderLine& order : orders)
    ParseOrder(order, work);
}

SyntaxFault FindSyntaxFault(const model::Map& map, const OrderLine& order) {
  if (model::FindCountry(order.Power) == 0) return SyntaxFault::Power;
  if (!IsUnitType(order.UnitType)) return SyntaxFault::UnitType;
  if (model::FindProvince(map, order.Location) == 0) return SyntaxFault::Location;
  if (IsSupport(order)) return SupportFault(map, order);
  if (IsConvoy(order)) return ConvoyFault(map, order);
  if (order.Kind == "HOLD") return SyntaxFault::None;
  if (!IsMove(order)) return SyntaxFault::MoveVerb;
  if (model::FindProvince(map, order.Target) == 0) return SyntaxFault::Destination;
  return SyntaxFault::None;
}

bool CheckOrderSyntax(const model::Map& map, OrderTable& orders, model::Messages& messages) {
  for (OrderLine& order : orders) {
    if (FindSyntaxFault(map, order) == SyntaxFault::None) continue;
    Reject(order, "syntax error");
    if (!messages.Warn(model::WarningText(order.Text, "syntax error."))) return false;
  }
  return true;
}

}  // namespace orb::orders
