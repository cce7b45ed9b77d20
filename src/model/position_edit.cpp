#include "model/position_edit.h"

#include "model/lookups.h"
#include "model/place.h"

namespace orb::model {
namespace {

using model::GameState;
using model::Map;
using model::Unit;

std::string Quoted(std::string_view text) {
  return std::string("\"").append(text).append("\"");
}

std::string LocationName(const Map& map, std::string_view location) {
  return PlaceName(map, model::FindProvince(map, location));
}

/// "An army" or "A fleet".
std::string TypeName(const Unit& unit) {
  return unit.UnitType == "A" ? "An army" : "A fleet";
}

std::string LocationFault(const Map& map, std::string_view location) {
  if (model::FindProvince(map, location) != 0) return {};
  return Quoted(location) + " is not a location of the map.";
}

std::string PowerFault(std::string_view power) {
  if (model::FindCountry(power) != 0) return {};
  return Quoted(power) + " is not one of the seven powers.";
}

std::string TypeFault(const Unit& unit) {
  if (unit.UnitType == "A" || unit.UnitType == "F") return {};
  return Quoted(unit.UnitType) + " is neither an army (A) nor a fleet (F).";
}

std::string StandingFault(const Map& map, const Unit& unit) {
  std::string fault = LocationFault(map, unit.Location);
  if (!fault.empty() || CanStandIn(map, unit.UnitType, unit.Location)) return fault;
  fault = TypeName(unit) + " cannot stand in " + LocationName(map, unit.Location);
  std::string coasts;
  for (const int row : StandingPlaces(map, unit.UnitType, unit.Location))
    coasts += (coasts.empty() ? "" : " or ") + map.Provinces[row].Name;
  return coasts.empty() ? fault + "." : fault + ", only in " + coasts + ".";
}

std::string OccupationFault(const GameState& game, const Unit& wanted, int replaced) {
  for (int u = 1; u <= game.Units.Count(); ++u) {
    const Unit& unit = game.Units[u];
    const bool inTheWay = (unit.Status == model::Dislodged) == (wanted.Status == model::Dislodged);
    if (u == replaced || !inTheWay || !model::SamePlace(unit.Location, wanted.Location)) continue;
    const char* text = wanted.Status.empty() ? " is occupied by " : " has a dislodged unit: ";
    return LocationName(*game.Map, wanted.Location) + text + UnitText(unit) + ".";
  }
  return {};
}

std::string DislodgementFault(const Map& map, const Unit& unit) {
  if (unit.Status.empty()) return {};
  if (unit.Status != model::Dislodged) return Quoted(unit.Status) + " is not a status of units.";
  // Old game files do not record it.
  if (unit.DislodgedFrom.empty()) return {};
  if (model::SamePlace(unit.DislodgedFrom, unit.Location)) {
    return "The attack on " + LocationName(map, unit.Location) + " cannot have come from there.";
  }
  return LocationFault(map, unit.DislodgedFrom);
}

std::string PreviousFault(const Map& map, const Unit& unit) {
  const std::string& previous = unit.PreviousLocation;
  if (previous.empty() || previous == model::Unknown) return {};
  std::string fault = LocationFault(map, previous);
  if (!fault.empty() || CanStandIn(map, unit.UnitType, previous)) return fault;
  return TypeName(unit) + " cannot have stood in " + LocationName(map, previous) + " before.";
}

/// Whether the unit can be where and as it is, together with the others.
std::string PositionFault(const GameState& game, const Unit& wanted, int replaced) {
  std::string fault = StandingFault(*game.Map, wanted);
  if (fault.empty()) fault = DislodgementFault(*game.Map, wanted);
  if (fault.empty()) fault = OccupationFault(game, wanted, replaced);
  return fault;
}

void CheckIndex(const GameState& game, int unit) {
  if (unit < 1 || unit > game.Units.Count()) model::ThrowIndexOutOfRange(unit, game.Units.Count());
}

}  // namespace

std::string PlaceName(const Map& map, int row) {
  const model::Province& province = map.Provinces[row];
  return province.FullName + " (" + province.Name + ")";
}

std::vector<int> StandingPlaces(const Map& map, std::string_view unitType,
                                std::string_view location) {
  std::vector<int> rows;
  for (int row = 1; row <= map.Provinces.Count(); ++row) {
    const std::string& name = map.Provinces[row].Name;
    if (model::SamePlace(name, location) && CanStandIn(map, unitType, name)) rows.push_back(row);
  }
  return rows;
}

Unit NewUnit(std::string_view power, std::string_view unitType, std::string_view location) {
  Unit unit;
  unit.Power = power;
  unit.UnitType = unitType;
  unit.Location = location;
  return unit;
}

std::string UnitFault(const GameState& game, const Unit& wanted, int replaced) {
  if (replaced == 0 && game.Units.Count() == model::UnitBound) {
    return "There are " + std::to_string(model::UnitBound) + " units, and no more can be kept.";
  }
  std::string fault = PowerFault(wanted.Power);
  if (fault.empty()) fault = TypeFault(wanted);
  if (fault.empty()) fault = PositionFault(game, wanted, replaced);
  if (fault.empty()) fault = PreviousFault(*game.Map, wanted);
  return fault;
}

std::string MoveFault(const GameState& game, int unit, std::string_view location) {
  CheckIndex(game, unit);
  Unit moved = game.Units[unit];
  moved.Location = location;
  return PositionFault(game, moved, unit);
}

std::string AddUnit(GameState& game, const Unit& unit) {
  std::string fault = UnitFault(game, unit, 0);
  if (fault.empty()) game.Units.Append(unit);
  return fault;
}

std::string MoveUnit(GameState& game, int unit, std::string_view location) {
  std::string fault = MoveFault(game, unit, location);
  if (fault.empty()) game.Units[unit].Location = location;
  return fault;
}

void RemoveUnit(GameState& game, int unit) {
  game.Units.Remove(unit);
}

std::string ChangeUnit(GameState& game, int unit, const Unit& wanted) {
  CheckIndex(game, unit);
  std::string fault = UnitFault(game, wanted, unit);
  if (fault.empty()) game.Units[unit] = wanted;
  return fault;
}

std::string GiveCentre(GameState& game, int row, std::string_view power) {
  if (game.Map->Provinces[row].IsSupplyCentre == 0) {
    return PlaceName(*game.Map, row) + " is not a supply centre.";
  }
  std::string fault = power.empty() ? std::string() : PowerFault(power);
  if (fault.empty()) game.Provinces[row].Owner = power;
  return fault;
}

std::string ChangeProvince(GameState& game, int row, std::string_view owner, bool contested) {
  if (owner != game.Provinces[row].Owner) {
    std::string fault = GiveCentre(game, row, owner);
    if (!fault.empty()) return fault;
  }
  for (int other = 1; other <= game.Map->Provinces.Count(); ++other) {
    if (IsSamePlace(*game.Map, other, row)) game.Provinces[other].Uncontested = !contested;
  }
  return {};
}

}  // namespace orb::model
