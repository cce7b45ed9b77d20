#include "adjudication/possible_orders.h"

#include "adjudication/list_check.h"
#include "adjudication/usual/stages.h"
#include "model/lookups.h"
#include "model/place.h"
#include "orders/order_list.h"
#include "orders/parser.h"
#include "orders/waters.h"
#include "support/boards.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <random>
#include <string>
#include <vector>

namespace orb::tests {
namespace {

using adjudication::PossibleOrders;
using model::GameState;
using model::Unit;
using testing::ElementsAre;

using Lines = std::vector<std::string>;

/// The same crowded position for the same seed: half of its units at sea or on the coasts.
GameState Position(unsigned seed) {
  std::mt19937 random(seed);
  const auto below = [&](int bound) {
    return static_cast<int>(random() % static_cast<unsigned>(bound));
  };
  const model::Map& map = *RealMap();
  GameState game = EmptyBoard("Spring", "moves");
  const int centre = 1 + below(map.Provinces.Count());
  while (game.Units.Count() < 9) {
    // Near each other, so that they have to do with each other.
    const int row = 1 + below(map.Provinces.Count());
    const model::Province& a = map.Provinces[row];
    if (model::UnitDistance(a, map.Provinces[centre]) > 0.3) continue;
    const std::string type = below(2) == 0 ? "A" : "F";
    if (!model::CanStandIn(map, type, a.Name) || model::FindUnitAt(game, a.Name) != 0) continue;
    game.Units.Append({std::string(model::PowerName(1 + below(3))), type, a.Name, {}, {}, {}});
  }
  return game;
}

/// The other unit as a line names it: with its power where that is another.
std::string Named(const Unit& unit, const Unit& other) {
  const std::string text = model::UnitText(other);
  return unit.Power == other.Power ? text.substr(4) : text;
}

/// Lines for all fleets at sea to convoy the move.
Lines ConvoysOf(const GameState& game, const Unit& army, const std::string& to) {
  Lines lines;
  const orders::Waters waters = orders::FindWaters(*game.Map, orders::PiecesOf(game));
  for (const int u : waters.Fleets) {
    const Unit& fleet = game.Units[u];
    lines.push_back(model::UnitText(fleet) + " C " + Named(fleet, army) + " - " + to);
  }
  return lines;
}

/// Whether the usual rules let the first line pass, and all that it refers to.
bool Passes(GameState game, const Lines& lines) {
  game.OrdersList = lines;
  const adjudication::Resolution resolution = adjudication::usual::ResolveStage(game);
  for (int k = 1; k <= static_cast<int>(lines.size()); ++k) {
    const orders::OrderResult rejection = resolution.Orders[k].Rejection;
    if (rejection != orders::OrderResult::None && rejection != orders::OrderResult::Cut)
      return false;
  }
  return true;
}

/// Whether some chain of fleets at sea needs the fleet: by trying every set of them.
bool IsInSomeChain(const GameState& game, int fleet, const Unit& army, int to) {
  const model::Map& map = *game.Map;
  const orders::Waters waters = orders::FindWaters(map, orders::PiecesOf(game));
  if (!waters.Fleets.Has(fleet)) return false;
  std::vector<int> fleets;
  for (const int u : waters.Fleets)
    fleets.push_back(u);
  const int from = map.Places[model::FindProvince(map, army.Location)];
  for (unsigned set = 0; set < 1U << fleets.size(); ++set) {
    orders::UnitSet chosen;
    for (std::size_t i = 0; i < fleets.size(); ++i) {
      if ((set >> i & 1U) != 0) chosen.Add(fleets[i]);
    }
    if (!orders::HasChain(waters, chosen, from, map.Places[to])) continue;
    chosen.Remove(fleet);
    if (!orders::HasChain(waters, chosen, from, map.Places[to])) return true;
  }
  return false;
}

/// Every line of the text form that could pass, found by trying all of them.
Lines AllThatPass(const GameState& game, int u) {
  const Unit& unit = game.Units[u];
  const std::string begin = model::UnitText(unit) + " ";
  Lines lines{begin + "hold"};
  const auto tryMove = [&](const std::string& line, const Lines& others) {
    Lines all{line};
    all.insert(all.end(), others.begin(), others.end());
    if (Passes(game, all)) lines.push_back(line);
  };
  const auto forAims = [&](auto work) {
    for (const model::Province& province : game.Map->Provinces) {
      const bool exact = unit.UnitType == "F" || !model::IsCoast(province.Name);
      if (exact) work(province.Name);
    }
  };
  forAims([&](const std::string& to) {
    if (model::CanStandIn(*game.Map, unit.UnitType, to)) tryMove(begin + "- " + to, {});
  });
  for (const Unit& other : game.Units)
    tryMove(begin + "S " + Named(unit, other) + " hold", {model::UnitText(other) + " hold"});
  for (const Unit& other : game.Units) {
    for (const model::Province& province : game.Map->Provinces) {
      if (!model::CanStandIn(*game.Map, other.UnitType, province.Name)) continue;
      const std::string move = " - " + province.Name;
      if (&other != &unit)
        tryMove((begin + "S ").append(Named(unit, other)).append(move),
                {model::UnitText(other) + move});
    }
  }
  for (const Unit& other : game.Units) {
    for (int row = 1; row <= game.Map->Provinces.Count(); ++row) {
      if (other.UnitType == "A" &&
          model::CanStandIn(*game.Map, "A", model::LocationName(*game.Map, row)) &&
          !model::SamePlace(other.Location, model::LocationName(*game.Map, row)) &&
          IsInSomeChain(game, u, other, row)) {
        lines.push_back(begin + "C " + Named(unit, other) + " - " +
                        model::LocationName(*game.Map, row));
      }
    }
  }
  return lines;
}

/// The problems that the checks of ORB's own rules find with the line, where the others do what it
/// refers to.
Lines ProblemsOf(GameState game, const std::string& line) {
  const orders::OrderLine order = orders::ParseLine(*game.Map, model::Stage::Moves, line);
  game.OrdersList = {line};
  const auto addMove = [&](const Unit& unit, int to) {
    const std::string& place = model::LocationName(*game.Map, to);
    if (!orders::IsMove(order)) game.OrdersList.push_back(model::UnitText(unit) + " - " + place);
    if (unit.UnitType != "A") return;
    for (const std::string& convoy : ConvoysOf(game, unit, place)) {
      if (orders::UnitPart(convoy) != orders::UnitPart(line)) game.OrdersList.push_back(convoy);
    }
  };
  for (const Unit& unit : game.Units) {
    const bool own = model::UnitText(unit) == orders::UnitPart(line);
    if (own && orders::IsMove(order)) addMove(unit, order.Target);
    const int location = model::FindProvince(*game.Map, unit.Location);
    if (!own && location == order.Target && order.Kind2 == orders::OrderKind::Move)
      addMove(unit, order.Target2);
  }
  return adjudication::CheckList(game).Lines.front();
}

TEST(PossibleOrders, AreAllLinesThatCouldPassAndNoOthers) {
  for (unsigned seed = 1; seed <= 5; ++seed) {
    SCOPED_TRACE(seed);
    const GameState game = Position(seed);
    const PossibleOrders possible(game);
    for (int u = 1; u <= game.Units.Count(); u += 2) {
      const Lines listed = possible.OfUnit(u);
      EXPECT_EQ(listed, AllThatPass(game, u)) << model::UnitText(game.Units[u]);
      for (const std::string& line : listed)
        EXPECT_THAT(ProblemsOf(game, line), testing::IsEmpty()) << line;
    }
  }
}

TEST(PossibleOrders, OfRetreatsAreThePlacesThatAreFree) {
  GameState game = Board("Spring", "retreats",
                         {"FRA A(Bur) <Mun", "GER A(Bur)", "FRA A(Par)", "ENG F(Spa.n) <MAO"});
  Live(game, "Gas").Uncontested = false;
  const PossibleOrders possible(game);
  EXPECT_THAT(possible.OfUnit(1), ElementsAre("FRA A(Bur) retreat Mar", "FRA A(Bur) retreat Pic",
                                              "FRA A(Bur) retreat Ruh", "FRA A(Bur) retreat Bel",
                                              "FRA A(Bur) disband"));
  EXPECT_THAT(possible.OfUnit(2), testing::IsEmpty());
  EXPECT_THAT(possible.OfUnit(4), ElementsAre("ENG F(Spa.n) retreat Por", "ENG F(Spa.n) disband"));
}

TEST(PossibleOrders, OfAdjustmentsAreBuildsAndDisbandsOfThePower) {
  GameState game = Board("Autumn", "adjustments", {"RUS A(War)", "RUS F(BLA)", "TUR A(Sev)"});
  Own(game, "RUS Stp War Mos Sev Bul");
  EXPECT_THAT(PossibleOrders(game).OfPower(model::FindCountry("RUS")),
              ElementsAre("RUS build A(Mos)", "RUS build A(Stp)", "RUS build F(Stp.n)",
                          "RUS build F(Stp.s)", "RUS disband A(War)", "RUS disband F(BLA)"));
}

}  // namespace
}  // namespace orb::tests
