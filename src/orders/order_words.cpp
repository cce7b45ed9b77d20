#include "orders/order_words.h"

#include "model/country.h"
#include "model/unit_type.h"
#include "text/strings.h"

#include <algorithm>

namespace orb::orders {
namespace {

constexpr std::string_view Filler = " (X) (X) (X) (X) (X) (X) (X) (X) (X) (X) (X) (X)";

/// Cuts a line with its filler into fields. The filler holds every separator, so that a short line
/// never runs out of them.
class FieldCutter {
 public:
  FieldCutter(std::string_view text, std::string& work) : work_(work) {
    work.assign(text).append(Filler);
    rest_ = work;
  }

  /// The text before the next separator; what follows it, trimmed, remains. The filler sees to it
  /// that the rest never ends in a blank.
  std::string_view UpTo(char separator) {
    const std::size_t end = std::min(rest_.find(separator), rest_.size());
    const std::string_view field = rest_.substr(0, end);
    rest_.remove_prefix(std::min(end + 1, rest_.size()));
    while (rest_.starts_with(' '))
      rest_.remove_prefix(1);
    return field;
  }

  /// The same in capitals.
  std::string_view CapitalsUpTo(char separator) {
    const std::string_view field = UpTo(separator);
    const auto start = static_cast<std::size_t>(field.data() - work_.data());
    text::MakeUpperCase({work_.data() + start, field.size()});
    return field;
  }

  /// Whether the next "(" comes before the next blank.
  bool BracketBeforeBlank() const { return rest_.find('(') <= rest_.find(' '); }

 private:
  std::string& work_;
  std::string_view rest_;
};

void CutOtherUnit(FieldCutter& fields, OrderWords& order) {
  order.Power2 = fields.BracketBeforeBlank() ? order.Power : fields.UpTo(' ');
  order.UnitType2 = fields.UpTo('(');
  order.Target = fields.UpTo(')');
}

void CutSupport(FieldCutter& fields, OrderWords& order) {
  CutOtherUnit(fields, order);
  order.Kind2 = KindOf(fields.CapitalsUpTo(' '), model::Stage::Moves);
  if (order.Kind2 == OrderKind::Move) order.Target2 = fields.UpTo(' ');
}

/// Unlike in a support the other unit's verb is taken as it is written; only "-" will do.
void CutConvoy(FieldCutter& fields, OrderWords& order) {
  CutOtherUnit(fields, order);
  order.Kind2 = KindOf(fields.UpTo(' '), model::Stage::Moves);
  order.Target2 = fields.UpTo(' ');
}

void CutUnit(FieldCutter& fields, OrderWords& order) {
  order.UnitType = fields.UpTo('(');
  order.Location = fields.UpTo(')');
}

/// Waters are spelled in capitals, lands are not.
bool IsWater(std::string_view location) {
  return std::none_of(location.begin(), location.end(),
                      [](char c) { return c >= 'a' && c <= 'z'; });
}

SyntaxFault UnitFault(const OrderParts& order) {
  if (order.UnitType == model::UnitType::None) return SyntaxFault::UnitType;
  return order.Location != 0 ? SyntaxFault::None : SyntaxFault::Location;
}

SyntaxFault OtherUnitFault(const OrderParts& order) {
  if (order.Power2 == 0) return SyntaxFault::OtherPower;
  if (order.UnitType2 == model::UnitType::None) return SyntaxFault::OtherUnitType;
  return order.Target != 0 ? SyntaxFault::None : SyntaxFault::OtherLocation;
}

SyntaxFault SupportFault(const OrderParts& order) {
  if (const auto fault = OtherUnitFault(order); fault != SyntaxFault::None) return fault;
  if (order.Kind2 == OrderKind::Hold) return SyntaxFault::None;
  if (order.Kind2 != OrderKind::Move) return SyntaxFault::OtherVerb;
  return order.Target2 != 0 ? SyntaxFault::None : SyntaxFault::OtherDestination;
}

SyntaxFault ConvoyFault(const OrderParts& order, std::string_view location) {
  if (order.UnitType != model::UnitType::Fleet || !IsWater(location))
    return SyntaxFault::FleetInland;
  if (const auto fault = OtherUnitFault(order); fault != SyntaxFault::None) return fault;
  if (order.UnitType2 != model::UnitType::Army) return SyntaxFault::FleetCarried;
  if (order.Kind2 != OrderKind::Move) return SyntaxFault::ArmyStays;
  return order.Target2 != 0 ? SyntaxFault::None : SyntaxFault::OtherDestination;
}

/// The rules behind the ordered unit; the moves stage's where the stage takes no orders.
SyntaxFault VerbFault(const OrderParts& order, std::string_view location, model::Stage stage) {
  switch (order.Kind) {
    case OrderKind::Support:
      return SupportFault(order);
    case OrderKind::Convoy:
      return ConvoyFault(order, location);
    case OrderKind::Move:
    case OrderKind::Retreat:
      return order.Target != 0 ? SyntaxFault::None : SyntaxFault::Destination;
    case OrderKind::None:
      return stage == model::Stage::Retreats ? SyntaxFault::RetreatVerb : SyntaxFault::MoveVerb;
    default:
      return SyntaxFault::None;
  }
}

/// The first rule that the parts break; `location` is the ordered unit's as it is written.
SyntaxFault FaultOf(const OrderParts& order, std::string_view location, model::Stage stage) {
  if (order.Power == 0) return SyntaxFault::Power;
  if (stage == model::Stage::Adjustments && order.Kind == OrderKind::None)
    return SyntaxFault::AdjustmentVerb;
  if (const auto fault = UnitFault(order); fault != SyntaxFault::None) return fault;
  return stage == model::Stage::Adjustments ? SyntaxFault::None : VerbFault(order, location, stage);
}

std::int8_t PowerRow(std::string_view word) {
  return static_cast<std::int8_t>(model::FindCountry(word));
}

std::int16_t PlaceRow(const model::Map& map, std::string_view word) {
  return static_cast<std::int16_t>(model::FindProvince(map, word));
}

/// A part that is not written is cut from the filler behind the line, or runs into it.
constexpr std::string_view FillerStart = "(X";

/// What is wrong with a part that names nothing, or `fault` when it names the wrong thing.
std::string Faulty(std::string_view what, std::string_view field, const std::string& fault) {
  const std::size_t filler = field.find(FillerStart);
  if (field.empty() || filler == 0) return std::string(what) + " is missing";
  return filler == std::string_view::npos ? fault : std::string(what) + " is not complete";
}

std::string Quoted(std::string_view field) {
  return std::string("\"").append(text::Trim(field)).append("\"");
}

std::string NotAPower(std::string_view what, std::string_view field) {
  return Faulty(what, field, Quoted(field) + " is not a power");
}

std::string NotAUnit(std::string_view what, std::string_view field) {
  return Faulty(what, field, Quoted(field) + " is neither A nor F");
}

std::string OffTheMap(std::string_view what, std::string_view field) {
  return Faulty(what, field, std::string(what) + " " + Quoted(field) + " is not on the map");
}

}  // namespace

OrderWords CutOrder(std::string_view text, model::Stage stage, std::string& work) {
  FieldCutter fields(text, work);
  OrderWords order;
  if (stage == model::Stage::Adjustments) {
    order.Power = fields.CapitalsUpTo(' ');
    order.Kind = KindOf(fields.CapitalsUpTo(' '), stage);
    CutUnit(fields, order);
    return order;
  }
  order.Power = fields.UpTo(' ');
  CutUnit(fields, order);
  order.Kind = KindOf(fields.CapitalsUpTo(' '), stage);
  if (order.Kind == OrderKind::Move || order.Kind == OrderKind::Retreat) {
    order.Target = fields.UpTo(' ');
  }
  if (order.Kind == OrderKind::Support) CutSupport(fields, order);
  if (order.Kind == OrderKind::Convoy) CutConvoy(fields, order);
  return order;
}

OrderParts ReadParts(const model::Map& map, const OrderWords& order, model::Stage stage) {
  OrderParts parts;
  parts.Power = PowerRow(order.Power);
  parts.UnitType = model::UnitTypeOf(order.UnitType);
  parts.Location = PlaceRow(map, order.Location);
  parts.Kind = order.Kind;
  parts.Target = PlaceRow(map, order.Target);
  if (order.Kind == OrderKind::Support || order.Kind == OrderKind::Convoy) {
    parts.Power2 = order.Power2 == order.Power ? parts.Power : PowerRow(order.Power2);
    parts.UnitType2 = model::UnitTypeOf(order.UnitType2);
    parts.Kind2 = order.Kind2;
    parts.Target2 = PlaceRow(map, order.Target2);
  }
  parts.Fault = FaultOf(parts, order.Location, stage);
  return parts;
}

std::string FaultText(const OrderWords& order, SyntaxFault fault) {
  switch (fault) {
    case SyntaxFault::Power:
      return NotAPower("the power", order.Power);
    case SyntaxFault::UnitType:
      return NotAUnit("the unit", order.UnitType);
    case SyntaxFault::Location:
      return OffTheMap("the unit's location", order.Location);
    case SyntaxFault::MoveVerb:
      return "the unit is told neither to move nor to hold, support or convoy";
    case SyntaxFault::RetreatVerb:
      return "the unit is told neither to retreat nor to disband";
    case SyntaxFault::AdjustmentVerb:
      return "the power is told neither to build nor to disband";
    case SyntaxFault::Destination:
      return OffTheMap("the destination", order.Target);
    case SyntaxFault::OtherPower:
      return NotAPower("the other unit's power", order.Power2);
    case SyntaxFault::OtherUnitType:
      return NotAUnit("the other unit", order.UnitType2);
    case SyntaxFault::OtherLocation:
      return OffTheMap("the other unit's location", order.Target);
    case SyntaxFault::OtherVerb:
      return "the supported unit neither moves nor holds";
    case SyntaxFault::OtherDestination:
      return OffTheMap("the other unit's destination", order.Target2);
    case SyntaxFault::FleetInland:
      return "only a fleet at sea convoys";
    case SyntaxFault::FleetCarried:
      return "only an army is convoyed";
    case SyntaxFault::ArmyStays:
      return "the convoyed army does not move";
    case SyntaxFault::None:
      break;
  }
  return {};
}

}  // namespace orb::orders
