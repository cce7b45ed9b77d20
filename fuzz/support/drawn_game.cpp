#include "support/drawn_game.h"

#include "model/lookups.h"
#include "support/fuzzing.h"

#include <array>

namespace orb::fuzz {
namespace {

using model::GameState;
using model::Unit;

std::string AnyPlace(const GameState& game, Choices& next) {
  return game.Map->Provinces[1 + next.Below(game.Map->Provinces.Count())].Name;
}

/// A place beside this one: orders to anywhere else hardly ever pass the checks.
std::string PlaceBeside(const GameState& game, const std::string& place, Choices& next) {
  const int row = model::FindProvince(*game.Map, place);
  const int choice = next.Below(16);
  if (row == 0 || choice == 15) return AnyPlace(game, next);
  const auto& adjacency = choice % 2 == 0 ? game.Map->ArmyAdjacency : game.Map->FleetAdjacency;
  const int neighbour =
      adjacency[static_cast<std::size_t>(row - 1)][static_cast<std::size_t>(choice / 2)];
  return neighbour == 0 ? AnyPlace(game, next) : game.Map->Provinces[neighbour].Name;
}

std::string AnyPower(Choices& next) {
  return std::string(model::PowerName(1 + next.Below(model::CountryCount)));
}

Unit AnyUnit(const GameState& game, Choices& next) {
  Unit unit;
  unit.Power = AnyPower(next);
  unit.UnitType = next.Below(2) == 0 ? "A" : "F";
  unit.Location = AnyPlace(game, next);
  unit.PreviousLocation = next.OneIn(4) ? AnyPlace(game, next) : std::string();
  return unit;
}

bool IsTaken(const GameState& game, const Unit& unit) {
  for (const Unit& other : game.Units) {
    if (other.Status != unit.Status) continue;
    if (model::SamePlace(other.Location, unit.Location)) return true;
  }
  return false;
}

void AddUnit(GameState& game, Choices& next) {
  Unit unit = AnyUnit(game, next);
  if (game.Stage == model::Stage::Retreats && next.OneIn(2)) {
    unit.Status = model::Dislodged;
    unit.DislodgedFrom = PlaceBeside(game, unit.Location, next);
  }
  if (!IsTaken(game, unit)) game.Units.Append(unit);
}

Unit UnitToOrder(const GameState& game, Choices& next) {
  const int row = next.Below(256);
  return row == 255 || game.Units.Count() == 0 ? AnyUnit(game, next)
                                               : game.Units[1 + row % game.Units.Count()];
}

std::string Name(const Unit& unit) {
  return unit.UnitType + "(" + unit.Location + ")";
}

std::string MovesOrder(const GameState& game, const Unit& unit, Choices& next) {
  const std::string own = unit.Power + " " + Name(unit);
  const int kind = next.Below(8);
  if (kind < 3) return own + " - " + PlaceBeside(game, unit.Location, next);
  if (kind == 3) return own + " hold";
  const Unit other = UnitToOrder(game, next);
  const std::string verb = kind < 6 ? " S " : " C ";
  const std::string head = own + verb + (next.OneIn(4) ? "" : other.Power + " ") + Name(other);
  if (kind == 4) return head + " hold";
  return head + " - " + PlaceBeside(game, next.OneIn(2) ? unit.Location : other.Location, next);
}

}  // namespace

int Choices::Below(int bound) {
  if (bytes_.empty()) return 0;
  const int choice = static_cast<unsigned char>(bytes_.front()) % bound;
  bytes_.remove_prefix(1);
  return choice;
}

model::GameState DrawnGame(Choices& next) {
  GameState game = StartingGame();
  game.Stage = static_cast<model::Stage>(next.Below(3));
  if (next.OneIn(2)) game.Season = "Autumn";
  if (next.OneIn(16)) game.Year = 32767;
  const int count = next.Below(model::UnitBound + 1);
  if (count > 0) game.Units.SetCount(0);
  for (int i = 1; i <= count; ++i)
    AddUnit(game, next);
  for (int i = next.Below(40); i > 0; --i) {
    model::ProvinceState& province = game.Provinces[1 + next.Below(game.Provinces.Count())];
    province.Owner = next.OneIn(8) ? std::string() : AnyPower(next);
    province.Uncontested = next.OneIn(2);
  }
  return game;
}

std::string DrawnOrder(const model::GameState& game, Choices& next) {
  const Unit unit = UnitToOrder(game, next);
  const std::string own = unit.Power + " " + Name(unit);
  switch (game.Stage) {
    case model::Stage::Retreats:
      if (next.OneIn(4)) return own + " DISBAND";
      return own + " RETREAT " + PlaceBeside(game, unit.Location, next);
    case model::Stage::Adjustments:
      if (next.OneIn(2)) return unit.Power + " DISBAND " + Name(unit);
      return unit.Power + " BUILD " + Name(AnyUnit(game, next));
    default:
      return MovesOrder(game, unit, next);
  }
}

}  // namespace orb::fuzz
