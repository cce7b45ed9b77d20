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

  /// The text before the next separator; what follows it, trimmed, remains.
  std::string_view UpTo(char separator) {
    const std::size_t end = std::min(rest_.find(separator), rest_.size());
    const std::string_view field = rest_.substr(0, end);
    rest_ = text::Trim(rest_.substr(std::min(end + 1, rest_.size())));
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

bool IsWater(std::string_view location) {
  return std::none_of(location.begin(), location.end(),
                      [](char c) { return c >= 'a' && c <= 'z'; });
}

bool IsPlace(const model::Map& map, std::string_view location) {
  return model::FindProvince(map, location) != 0;
}

SyntaxFault UnitFault(const model::Map& map, const OrderWords& order) {
  if (model::UnitTypeOf(order.UnitType) == model::UnitType::None) return SyntaxFault::UnitType;
  return IsPlace(map, order.Location) ? SyntaxFault::None : SyntaxFault::Location;
}

SyntaxFault OtherUnitFault(const model::Map& map, const OrderWords& order) {
  if (model::FindCountry(order.Power2) == 0) return SyntaxFault::OtherPower;
  if (model::UnitTypeOf(order.UnitType2) == model::UnitType::None)
    return SyntaxFault::OtherUnitType;
  return IsPlace(map, order.Target) ? SyntaxFault::None : SyntaxFault::OtherLocation;
}

SyntaxFault SupportFault(const model::Map& map, const OrderWords& order) {
  if (const auto fault = OtherUnitFault(map, order); fault != SyntaxFault::None) return fault;
  if (order.Kind2 == OrderKind::Hold) return SyntaxFault::None;
  if (order.Kind2 != OrderKind::Move) return SyntaxFault::OtherVerb;
  return IsPlace(map, order.Target2) ? SyntaxFault::None : SyntaxFault::OtherDestination;
}

SyntaxFault ConvoyFault(const model::Map& map, const OrderWords& order) {
  if (order.UnitType != "F" || !IsWater(order.Location)) return SyntaxFault::FleetInland;
  if (const auto fault = OtherUnitFault(map, order); fault != SyntaxFault::None) return fault;
  if (order.UnitType2 != "A") return SyntaxFault::FleetCarried;
  if (order.Kind2 != OrderKind::Move) return SyntaxFault::ArmyStays;
  return IsPlace(map, order.Target2) ? SyntaxFault::None : SyntaxFault::OtherDestination;
}

/// The rules behind the ordered unit; the moves stage's where the stage takes no orders.
SyntaxFault VerbFault(const model::Map& map, const OrderWords& order, model::Stage stage) {
  switch (order.Kind) {
    case OrderKind::Support:
      return SupportFault(map, order);
    case OrderKind::Convoy:
      return ConvoyFault(map, order);
    case OrderKind::Move:
    case OrderKind::Retreat:
      return IsPlace(map, order.Target) ? SyntaxFault::None : SyntaxFault::Destination;
    case OrderKind::None:
      return stage == model::Stage::Retreats ? SyntaxFault::RetreatVerb : SyntaxFault::MoveVerb;
    default:
      return SyntaxFault::None;
  }
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

SyntaxFault FindSyntaxFault(const model::Map& map, const OrderWords& order, model::Stage stage) {
  if (model::FindCountry(order.Power) == 0) return SyntaxFault::Power;
  if (stage == model::Stage::Adjustments) {
    return order.Kind == OrderKind::None ? SyntaxFault::AdjustmentVerb : UnitFault(map, order);
  }
  if (const auto fault = UnitFault(map, order); fault != SyntaxFault::None) return fault;
  return VerbFault(map, order, stage);
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

std::string LineFaultText(const model::Map& map, std::string_view line, model::Stage stage) {
  std::string work;
  const OrderWords order = CutOrder(text::Trim(line), stage, work);
  return FaultText(order, FindSyntaxFault(map, order, stage));
}

}  // namespace orb::orders
