#include "orders/exchange/exact_line.h"

#include "orders/later_stages.h"
#include "orders/parser.h"
#include "text/strings.h"

namespace orb::exchange {
namespace {

using orders::OrderLine;

std::string UnitText(const std::string& type, const std::string& location) {
  std::string text = type;
  return text.append("(").append(location).append(")");
}

/// Fills the fields of the order from its text; the first rule of the text form that it breaks.
orders::SyntaxFault Parse(const model::Map& map, OrderStage stage, OrderLine& order) {
  std::string work;
  switch (stage) {
    case OrderStage::Moves:
      orders::ParseOrder(order, work);
      return orders::FindSyntaxFault(map, order);
    case OrderStage::Retreats:
      orders::ParseRetreat(order, work);
      return orders::FindRetreatFault(map, order);
    case OrderStage::Adjustments:
      orders::ParseAdjustment(order, work);
      return orders::FindAdjustmentFault(map, order);
    case OrderStage::None:
      break;
  }
  return orders::SyntaxFault::Power;
}

std::string SecondPower(const OrderLine& order, bool always) {
  return always || order.Power2 != order.Power ? order.Power2 + " " : std::string();
}

std::string Format(const OrderLine& order, OrderStage stage, bool alwaysNamesPower) {
  const std::string unit = UnitText(order.UnitType, order.Location);
  const std::string verb = order.Kind.size() > 1 ? text::LowerCase(order.Kind) : order.Kind;
  std::string line = order.Power;
  line.append(" ");
  if (stage == OrderStage::Adjustments) return line.append(verb).append(" ").append(unit);
  line.append(unit).append(" ").append(verb);
  if (IsSupport(order) || IsConvoy(order)) {
    line.append(" ").append(SecondPower(order, alwaysNamesPower));
    line.append(UnitText(order.UnitType2, order.Target));
    if (order.Kind2 == "HOLD") return line.append(" hold");
    return line.append(" - ").append(order.Target2);
  }
  if (!order.Target.empty()) line.append(" ").append(order.Target);
  return line;
}

}  // namespace

OrderStage StageOf(const model::GameState& game) {
  if (game.Stage == "moves") return OrderStage::Moves;
  if (game.Stage == "retreats") return OrderStage::Retreats;
  return game.Stage == "adjustments" ? OrderStage::Adjustments : OrderStage::None;
}

std::string FormatOrder(const OrderLine& order, OrderStage stage) {
  return Format(order, stage, false);
}

std::optional<OrderLine> ReadExactLine(const model::Map& map, OrderStage stage,
                                       std::string_view line) {
  OrderLine order;
  order.Text = line;
  if (Parse(map, stage, order) != orders::SyntaxFault::None) return std::nullopt;
  const std::string upper = text::UpperCase(line);
  // Names that the parser has found are spelled exactly, but for the power of an adjustment.
  const bool isExact =
      line.starts_with(order.Power) && (upper == text::UpperCase(Format(order, stage, false)) ||
                                        upper == text::UpperCase(Format(order, stage, true)));
  return isExact ? std::optional(order) : std::nullopt;
}

}  // namespace orb::exchange
