#include "support/drawn_game.h"

#include "model/lookups.h"
#include "orders/order_line.h"
#include "orders/order_list.h"
#include "support/fuzzing.h"

#include <algorithm>
#include <iterator>
#include <vector>

namespace orb::fuzz {
namespace {

using model::GameState;
using model::Unit;

std::string AnyPlace(const GameState& game, Choices& next) {
  return game.Map->Provinces[1 + next.Below(game.Map->Provinces.Count())].Name;
}

/// A place that the unit can most likely go to: orders to anywhere else hardly ever pass the
/// checks.
std::string PlaceBeside(const GameState& game, const Unit& unit, Choices& next) {
  const int row = model::FindProvince(*game.Map, unit.Location);
  const int choice = next.Below(model::NeighbourBound + 1);
  if (row == 0 || choice == model::NeighbourBound) return AnyPlace(game, next);
  const auto& adjacency = unit.UnitType == "A" ? game.Map->ArmyAdjacency : game.Map->FleetAdjacency;
  const auto& neighbours = adjacency[static_cast<std::size_t>(row - 1)];
  const auto count = std::ranges::find(neighbours, 0) - neighbours.begin();
  if (count == 0) return AnyPlace(game, next);
  return game.Map->Provinces[neighbours[static_cast<std::size_t>(choice % count)]].Name;
}

std::string AnyPower(Choices& next) {
  return std::string(model::PowerName(1 + next.Below(model::CountryCount)));
}

Unit AnyUnit(const GameState& game, Choices& next) {
  Unit unit;
  unit.Power = AnyPower(next);
  unit.UnitType = next.Below(2) == 0 ? "A" : "F";
  // Most units stand beside another: only neighbours come into conflict.
  const int count = game.Units.Count();
  unit.Location = count == 0 || next.OneIn(4)
                      ? AnyPlace(game, next)
                      : PlaceBeside(game, game.Units[1 + next.Below(count)], next);
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
    unit.DislodgedFrom = PlaceBeside(game, unit, next);
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

/// One of the moves in the list, empty for none: most of what is supported or carried goes there.
std::string ListedMove(const GameState& game, Choices& next) {
  std::vector<std::string> moves;
  std::ranges::copy_if(game.OrdersList, std::back_inserter(moves),
                       [](const std::string& line) { return line.find(") - ") == line.find(')'); });
  const auto row = static_cast<std::size_t>(next.Below(256));
  return moves.empty() || row >= 224 ? std::string() : moves[row % moves.size()];
}

std::string MovesOrder(const GameState& game, const Unit& unit, Choices& next) {
  const std::string own = unit.Power + " " + Name(unit);
  const int kind = next.Below(8);
  if (kind == 0) return own + " hold";
  // Armies also go where only fleets can carry them.
  const bool isFar = unit.UnitType == "A" && kind == 1;
  if (kind <= 3)
    return own + " - " + (isFar ? AnyPlace(game, next) : PlaceBeside(game, unit, next));
  const std::string verb = kind < (unit.UnitType == "A" ? 8 : 6) ? " S " : " C ";
  const std::string move = ListedMove(game, next);
  if (!move.empty()) return own + verb + move;
  const Unit other = UnitToOrder(game, next);
  const std::string head = own + verb + (next.OneIn(4) ? "" : other.Power + " ") + Name(other);
  if (kind == 4) return head + " hold";
  return head + " - " + PlaceBeside(game, next.OneIn(2) ? unit : other, next);
}

std::string OrderFor(const GameState& game, const Unit& unit, Choices& next) {
  const std::string own = unit.Power + " " + Name(unit);
  switch (game.Stage) {
    case model::Stage::Retreats:
      if (next.OneIn(8)) return own + " DISBAND";
      return own + " RETREAT " + PlaceBeside(game, unit, next);
    case model::Stage::Adjustments:
      if (next.OneIn(2)) return unit.Power + " DISBAND " + Name(unit);
      return unit.Power + " BUILD " + Name(AnyUnit(game, next));
    default:
      return MovesOrder(game, unit, next);
  }
}

}  // namespace

Choices::Choices(std::string_view bytes) : bytes_(bytes) {
  std::seed_seq seeds(bytes.begin(), bytes.end());
  chance_.seed(seeds);
}

int Choices::Below(int bound) {
  if (bytes_.empty()) return static_cast<int>(chance_() % static_cast<unsigned>(bound));
  const int choice = static_cast<unsigned char>(bytes_.front()) % bound;
  bytes_.remove_prefix(1);
  return choice;
}

model::GameState DrawnGame(Choices& next) {
  GameState game = StartingGame();
  game.Stage = static_cast<model::Stage>(next.Below(3));
  if (next.OneIn(2)) game.Season = "Autumn";
  if (next.OneIn(16)) game.Year = 32767;
  // The starting position now and then; few units are in each other's way less often than many.
  const int count = next.OneIn(4) ? 0 : next.Below(model::UnitBound + 1);
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

void FileDrawnOrders(model::GameState& game, Choices& next) {
  std::vector<std::string>& list = orders::StageList(game);
  if (game.Stage != model::Stage::Adjustments) {
    for (const Unit& unit : game.Units) {
      if (!next.OneIn(8)) orders::FileOrder(list, OrderFor(game, unit, next));
    }
  }
  const bool isLong = next.OneIn(16);
  for (int i = next.Below(isLong ? orders::OrderBound + 5 : 8); i > 0; --i)
    orders::FileOrder(list, OrderFor(game, UnitToOrder(game, next), next));
}

}  // namespace orb::fuzz
