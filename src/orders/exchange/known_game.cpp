#include "orders/exchange/known_game.h"

#include "model/lookups.h"
#include "model/place.h"

#include <algorithm>

namespace orb::exchange {
namespace {

using model::Unit;

constexpr std::size_t NameLength = 3;

bool IsCoast(const std::string& location) {
  return location.size() > NameLength;
}

/// Whether the unit is written so: type, power and coast count where they are written.
bool Fits(const Unit& unit, const WrittenUnit& written, const std::string& power,
          const std::string& location) {
  const bool stands =
      IsCoast(location) ? unit.Location == location : model::SamePlace(unit.Location, location);
  return stands && (written.Type == 0 || unit.UnitType[0] == written.Type) &&
         (power.empty() || unit.Power == power);
}

}  // namespace

std::string PowerText(int power) {
  return std::string(model::PowerName(power));
}

std::vector<UnitMeant> KnownGame::UnitsMeant(const WrittenUnit& written, int power, int fallback,
                                             Fault& fault) const {
  std::vector<UnitMeant> meant;
  // The unit to name in the fault: one that takes orders in this stage rather than one that does
  // not.
  const Unit* other = nullptr;
  const std::string owner = PowerText(power);
  for (const Unit& unit : Game.Units) {
    for (const int row : written.Place.Rows) {
      if (unit.UnitType.empty() || !model::SamePlace(unit.Location, NameOf(row))) continue;
      const bool takesOrders = Stage != model::Stage::Retreats || unit.Status == model::Dislodged;
      if (takesOrders && Fits(unit, written, owner, NameOf(row))) {
        meant.push_back({unit, {}});
        break;
      }
      if (other == nullptr || takesOrders) other = &unit;
    }
  }
  if (!meant.empty()) return meant;
  fault.At = written.Place.At;
  if (other != nullptr) {
    const bool settled = Stage == model::Stage::Retreats && other->Status != model::Dislodged;
    fault.Reason = settled ? model::UnitText(*other) + " is not dislodged"
                           : "the unit there is " + model::UnitText(*other);
    return meant;
  }
  if (written.Type == 0 || fallback == 0) {
    fault.Reason = "no unit stands there";
    return meant;
  }
  for (const int row : written.Place.Rows) {
    Unit unit;
    unit.Power = PowerText(fallback);
    unit.UnitType = std::string(1, written.Type);
    unit.Location = NameOf(row);
    meant.push_back({unit, "there is no " + model::UnitText(unit)});
  }
  return meant;
}

std::vector<std::string> KnownGame::DestinationsMeant(const WrittenPlace& written, const Unit& unit,
                                                      bool byConvoy) const {
  const model::Map& map = *Game.Map;
  std::vector<std::string> all;
  std::vector<std::string> possible;
  std::vector<std::string> near;
  for (const int row : written.Rows) {
    std::vector<std::string> reached;
    for (const int location : Names.Locations(row)) {
      if (model::IsAdjacent(map, unit.UnitType, unit.Location, NameOf(location))) {
        reached.push_back(NameOf(location));
      }
    }
    // An army, or a fleet that can reach none of the coasts, gets the place as written; resolving
    // says that it is impossible.
    if (unit.UnitType != "F" || reached.empty()) reached = {NameOf(row)};
    for (const std::string& location : reached) {
      all.push_back(location);
      if (model::CanStandIn(map, unit.UnitType, location)) possible.push_back(location);
      if (model::IsAdjacent(map, unit.UnitType, unit.Location, location)) near.push_back(location);
    }
  }
  // Only where several places bear the name is there a choice: a place that can be reached is more
  // likely meant than one that needs a convoy, and that more likely than one where the unit could
  // not stand.
  if (written.Rows.size() == 1) return all;
  if (!near.empty() && !byConvoy) return near;
  // No fleet is convoyed: what it cannot reach is meant as little as where it cannot stand.
  return possible.empty() || unit.UnitType == "F" ? all : possible;
}

std::string KnownGame::Objection(const PlainOrder& order) const {
  const auto stands = [&](const std::string& power, const std::string& type,
                          const std::string& location) {
    return std::any_of(Game.Units.begin(), Game.Units.end(), [&](const Unit& unit) {
      return unit.Power == power && unit.UnitType == type && unit.Location == location &&
             (Stage != model::Stage::Retreats || unit.Status == model::Dislodged);
    });
  };
  const auto missing = [](const std::string& power, const std::string& type,
                          const std::string& location) {
    return "there is no " + model::UnitText({power, type, location, {}, {}, {}});
  };
  if (order.Kind != orders::OrderKind::Build &&
      !stands(order.Power, order.UnitType, order.Location)) {
    return missing(order.Power, order.UnitType, order.Location);
  }
  if (!order.UnitType2.empty() && !stands(order.Power2, order.UnitType2, order.Target)) {
    return missing(order.Power2, order.UnitType2, order.Target);
  }
  return {};
}

void KnownGame::Learn(const PlainOrder& order) {
  std::erase_if(Moves, [&](const PlainOrder& earlier) {
    return earlier.Power == order.Power && earlier.UnitType == order.UnitType &&
           earlier.Location == order.Location;
  });
  if (order.Kind == orders::OrderKind::Move) Moves.push_back(order);
  if (order.Kind == orders::OrderKind::Convoy) Convoys.emplace(order.Target, order.Target2);
}

bool KnownGame::IsConvoyed(const PlainOrder& move) const {
  IsAsked = true;
  return move.UnitType == "A" && Convoys.contains({move.Location, move.Target});
}

std::string KnownGame::OnlyPower() const {
  IsAsked = true;
  constexpr std::size_t nameLength = 3;
  if (Ordered.empty()) return {};
  const std::string power = Ordered.begin()->substr(0, nameLength);
  return Ordered.rbegin()->substr(0, nameLength) == power ? power : std::string();
}

bool KnownGame::TakeRest() const {
  IsAsked = true;
  constexpr int most = 50;
  return ++RestReads < most && IsLearnt;
}

const std::string* KnownGame::OrderedMove(const Unit& unit) const {
  IsAsked = true;
  const auto move = std::ranges::find_if(Moves, [&](const PlainOrder& order) {
    return order.Power == unit.Power && order.UnitType == unit.UnitType &&
           order.Location == unit.Location;
  });
  return move == Moves.end() ? nullptr : &move->Target;
}

}  // namespace orb::exchange
