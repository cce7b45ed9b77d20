#include "adjudication/explain.h"
#include "adjudication/explain_parts.h"
#include "model/lookups.h"
#include "model/place.h"

namespace orb::adjudication {
namespace {

using model::Map;
using orders::OrderLine;

/// The coasts of the location's place where a fleet can stand: "Bul.e or Bul.s".
std::string CoastsOf(const Map& map, std::string_view location) {
  std::string names;
  for (const model::Province& province : map.Provinces) {
    if (province.Name == location || !model::SamePlace(province.Name, location)) continue;
    if (!model::CanStandIn(map, "F", province.Name)) continue;
    names += (names.empty() ? "" : " or ") + province.Name;
  }
  return names;
}

bool IsCoastal(const Map& map, std::string_view location) {
  return model::CanStandIn(map, "A", location) &&
         (model::CanStandIn(map, "F", location) || !CoastsOf(map, location).empty());
}

}  // namespace

std::string Quoted(const OrderLine& order) {
  return "\"" + order.Text + "\"";
}

std::string_view TypeName(const OrderLine& order) {
  return order.UnitType == "A" ? "army" : "fleet";
}

std::string Counted(int number, std::string_view thing) {
  return std::to_string(number).append(" ").append(thing).append(number == 1 ? "" : "s");
}

std::string NotUnderstood(const std::string& fault) {
  return "It was not understood: " + fault;
}

std::string UnitThere(const Resolution& resolution, std::string_view power,
                      std::string_view place) {
  std::string there;
  for (const model::Unit& unit : resolution.UnitsBefore) {
    if (!model::SamePlace(unit.Location, place)) continue;
    const bool own = unit.Power == power;
    if (!own && !there.empty()) continue;
    there = own ? "; its unit there is " + unit.UnitType + "(" + unit.Location + ")"
                : "; the unit there is " + model::UnitText(unit);
    if (own) break;
  }
  return there;
}

std::string NoSuchUnit(const Resolution& resolution, const OrderLine& order) {
  const std::string verdict = "There is no such unit: ";
  for (const model::Unit& unit : resolution.UnitsBefore) {
    if (resolution.Stage == ResolvedStage::Retreats && model::UnitText(unit) == UnitName(order)) {
      return verdict + UnitName(order) + " is not dislodged";
    }
  }
  return verdict + order.Power + " has no " + order.UnitType + "(" + order.Location + ")" +
         UnitThere(resolution, order.Power, order.Location);
}

std::string CannotStandText(const Map& map, const OrderLine& order, const std::string& location) {
  const std::string place = location.substr(0, 3);
  if (order.UnitType == "F") {
    if (const std::string coasts = CoastsOf(map, location); !coasts.empty()) {
      return "a fleet must name the coast: " + coasts;
    }
  } else if (place != location && model::CanStandIn(map, "A", place)) {
    return "an army must name the place without a coast: " + place;
  }
  return "no " + std::string(TypeName(order)) + " can stand in " + location;
}

std::string NoWayText(const Map& map, const OrderLine& order) {
  if (!model::CanStandIn(map, order.UnitType, order.Target)) {
    return CannotStandText(map, order, order.Target);
  }
  return "no " + std::string(TypeName(order)) + " can move from " + order.Location + " to " +
         order.Target;
}

std::string ImpossibleMoveText(const Map& map, const OrderLine& order) {
  const std::string noWay = "It is impossible: " + NoWayText(map, order);
  const bool couldSail = order.UnitType == "A" && IsCoastal(map, order.Location) &&
                         IsCoastal(map, order.Target) &&
                         !model::SamePlace(order.Location, order.Target);
  return couldSail ? noWay + " by land, and no order convoys it" : noWay;
}

}  // namespace orb::adjudication
