#include "adjudication/explain_parts.h"
#include "model/lookups.h"
#include "model/place.h"
#include "orders/parser.h"

#include <algorithm>

namespace orb::adjudication {
namespace {

using model::Map;
using model::UnitType;
using orders::OrderLine;

/// The coasts of the location's place where a fleet can stand: "Bul.e or Bul.s".
std::string CoastsOf(const Map& map, int location) {
  std::string names;
  for (int row = 1; row <= map.Provinces.Count(); ++row) {
    if (row == location || !model::IsSamePlace(map, row, location)) continue;
    if (!model::CanStandIn(map, UnitType::Fleet, row)) continue;
    names += (names.empty() ? "" : " or ") + map.Provinces[row].Name;
  }
  return names;
}

}  // namespace

std::string Quoted(const OrderLine& order) {
  return "\"" + order.Text + "\"";
}

std::string UnitName(const Resolution& resolution, const OrderLine& order) {
  return orders::UnitName(*resolution.Map, order);
}

std::string PowerOf(const OrderLine& order) {
  return std::string(model::PowerName(order.Power));
}

const std::string& NameOf(const Resolution& resolution, int location) {
  return model::LocationName(*resolution.Map, location);
}

std::string_view TypeName(model::UnitType type) {
  return type == model::UnitType::Army ? "army" : "fleet";
}

std::string Counted(int number, std::string_view thing) {
  return std::to_string(number).append(" ").append(thing).append(number == 1 ? "" : "s");
}

Explanation NotUnderstood(const Resolution& resolution, const OrderLine& order) {
  return {"It was not understood", orders::FaultText(order, resolution.Stage)};
}

std::string UnitThere(const Resolution& resolution, int power, int place) {
  std::string there;
  for (int u = 1; u <= resolution.Pieces.Count(); ++u) {
    const orders::Piece& piece = resolution.Pieces[u];
    if (!model::IsSamePlace(*resolution.Map, piece.Location, place)) continue;
    const model::Unit& unit = resolution.UnitsBefore[u];
    const bool own = piece.Power == power;
    // A unit of the ordering power is the one most likely meant.
    if (!own && !there.empty()) continue;
    there = own ? "; its unit there is " + unit.UnitType + "(" + unit.Location + ")"
                : "; the unit there is " + model::UnitText(unit);
    if (own) break;
  }
  return there;
}

Explanation NoSuchUnit(const Resolution& resolution, const OrderLine& order) {
  const std::string verdict = "There is no such unit";
  const auto& pieces = resolution.Pieces;
  if (resolution.Stage == model::Stage::Retreats &&
      std::ranges::find(pieces, orders::OrderedPiece(order)) != pieces.end()) {
    return {verdict, UnitName(resolution, order) + " is not dislodged"};
  }
  return {verdict, PowerOf(order) + " has no " + std::string(UnitTypeName(order.UnitType)) + "(" +
                       NameOf(resolution, order.Location) + ")" +
                       UnitThere(resolution, order.Power, order.Location)};
}

std::string CannotStandText(const Map& map, const OrderLine& order, int location) {
  const std::string& name = model::LocationName(map, location);
  const std::string place(model::ProvinceName(name));
  if (order.UnitType == UnitType::Fleet) {
    if (const std::string coasts = CoastsOf(map, location); !coasts.empty()) {
      return "a fleet must name the coast: " + coasts;
    }
  } else if (place != name && model::CanStandIn(map, "A", place)) {
    return "an army must name the place without a coast: " + place;
  }
  return "no " + std::string(TypeName(order.UnitType)) + " can stand in " + name;
}

std::string NoWayText(const Map& map, const OrderLine& order) {
  if (!model::CanStandIn(map, order.UnitType, order.Target)) {
    return CannotStandText(map, order, order.Target);
  }
  return "no " + std::string(TypeName(order.UnitType)) + " can move from " +
         model::LocationName(map, order.Location) + " to " + model::LocationName(map, order.Target);
}

Explanation ImpossibleMove(const Map& map, const OrderLine& order) {
  const std::string noWay = NoWayText(map, order);
  const bool couldSail =
      order.UnitType == UnitType::Army && model::IsCoastal(map, order.Location) &&
      model::IsCoastal(map, order.Target) && !model::IsSamePlace(map, order.Location, order.Target);
  return {"It is impossible", couldSail ? noWay + " by land, and no order convoys it" : noWay};
}

}  // namespace orb::adjudication
