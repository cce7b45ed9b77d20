#include "orders/syntax_fault.h"

#include "text/strings.h"

namespace orb::orders {
namespace {

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

std::string FaultText(const OrderLine& order, SyntaxFault fault) {
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
