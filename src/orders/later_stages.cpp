#include "orders/later_stages.h"

#include "model/country.h"
#include "orders/parser.h"
#include "text/strings.h"

namespace orb::orders {
namespace {

SyntaxFault UnitFault(const model::Map& map, const OrderLine& order) {
  if (order.UnitType != "A" && order.UnitType != "F") return SyntaxFault::UnitType;
  if (model::FindProvince(map, order.Location) == 0) return SyntaxFault::Location;
  return SyntaxFault::None;
}

}  // namespace

void ParseRetreat(OrderLine& order, std::string& work) {
  FieldCutter fields(order.Text, work);
  order.Power = fields.UpTo(' ');
  order.UnitType = fields.UpTo('(');
  order.Location = fields.UpTo(')');
  order.Kind = text::UpperCase(fields.UpTo(' '));
  if (order.Kind == "RETREAT") order.Target = fields.UpTo(' ');
}

void ParseAdjustment(OrderLine& order, std::string& work) {
  FieldCutter fields(order.Text, work);
  order.Power = text::UpperCase(fields.UpTo(' '));
  order.Kind = text::UpperCase(fields.UpTo(' '));
  order.UnitType = fields.UpTo('(');
  order.Location = fields.UpTo(')');
}

SyntaxFault FindRetreatFault(const model::Map& map, const OrderLine& order) {
  if (model::FindCountry(order.Power) == 0) return SyntaxFault::Power;
  if (const auto fault = UnitFault(map, order); fault != SyntaxFault::None) return fault;
  if (order.Kind == "DISBAND") return SyntaxFault::None;
  if (order.Kind != "RETREAT") return SyntaxFault::RetreatVerb;
  if (model::FindProvince(map, order.Target) == 0) return SyntaxFault::Destination;
  return SyntaxFault::None;
}

SyntaxFault FindAdjustmentFault(const model::Map& map, const OrderLine& order) {
  if (model::FindCountry(order.Power) == 0) return SyntaxFault::Power;
  if (order.Kind != "DISBAND" && order.Kind != "BUILD") return SyntaxFault::AdjustmentVerb;
  return UnitFault(map, order);
}

}  // namespace orb::orders
