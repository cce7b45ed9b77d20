#include "model/position_edit.h"

#include "support/boards.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <functional>
#include <string>
#include <vector>

namespace orb::tests {
namespace {

using model::GameState;
using model::NewUnit;
using model::Unit;
using testing::HasSubstr;

GameState Occupied() {
  return Board("Autumn", "retreats",
               {"FRA A(Par)", "GER A(Mun)", "FRA A(Mun) <Bur", "ENG F(NTH)", "RUS F(Stp.s)"});
}

Unit With(Unit unit, const std::function<void(Unit&)>& change) {
  change(unit);
  return unit;
}

Unit Dislodged(Unit unit, const std::string& from) {
  unit.Status = model::Dislodged;
  unit.DislodgedFrom = from;
  return unit;
}

Unit Before(Unit unit, const std::string& previous) {
  unit.PreviousLocation = previous;
  return unit;
}

struct RefusalCase {
  std::function<std::string(GameState&)> Edit;
  std::string Says;
};

TEST(Editing, WhatCannotBeIsRefusedWithItsReason) {
  const auto add = [](const Unit& unit) {
    return [unit](GameState& game) { return model::AddUnit(game, unit); };
  };
  const auto move = [](int unit, const char* to) {
    return [=](GameState& game) { return model::MoveUnit(game, unit, to); };
  };
  const auto change = [](int index, const Unit& unit) {
    return [=](GameState& game) { return model::ChangeUnit(game, index, unit); };
  };
  const std::vector<RefusalCase> cases = {
      {add(NewUnit("Fra", "A", "Bur")), "\"Fra\" is not one of the seven powers."},
      {add(NewUnit("FRA", "B", "Bur")), "\"B\" is neither an army (A) nor a fleet (F)."},
      {add(NewUnit("FRA", "A", "bur")), "\"bur\" is not a location of the map."},
      {add(NewUnit("FRA", "A", "ECH")), "An army cannot stand in English Channel (ECH)."},
      {add(NewUnit("FRA", "F", "Bur")), "A fleet cannot stand in Burgundy (Bur)."},
      {add(NewUnit("FRA", "F", "Spa")), "in Spain (Spa), only in Spa.n or Spa.s."},
      {add(NewUnit("FRA", "A", "Stp.n")), "only in Stp."},
      {add(NewUnit("RUS", "A", "Stp")), "St Petersburg (Stp) is occupied by RUS F(Stp.s)."},
      {add(Dislodged(NewUnit("FRA", "A", "Mun"), "Ruh")), "has a dislodged unit: FRA A(Mun)."},
      {add(Dislodged(NewUnit("RUS", "A", "Stp"), "Stp.s")), "cannot have come from there."},
      {add(Dislodged(NewUnit("FRA", "A", "Bur"), "Xyz")), "\"Xyz\""},
      {add(With(NewUnit("FRA", "A", "Bur"), [](Unit& unit) { unit.Status = "lost"; })), "\"lost\""},
      {add(Before(NewUnit("FRA", "F", "Bre"), "Par")), "A fleet cannot have stood in Paris (Par)"},
      {move(1, "Mun"), "Munich (Mun) is occupied by GER A(Mun)."},
      {move(2, "Par"), "Paris (Par) is occupied by FRA A(Par)."},
      {move(1, "NTH"), "An army cannot stand in North Sea (NTH)."},
      {move(3, "Bur"), "cannot have come from there."},
      {change(1, NewUnit("FRA", "A", "Mun")), "is occupied by GER A(Mun)."},
      {change(3, NewUnit("FRA", "A", "Mun")), "is occupied by GER A(Mun)."},
      {change(1, NewUnit("FRA", "F", "Par")), "A fleet cannot stand in Paris (Par)."},
      {[](GameState& game) { return model::GiveCentre(game, 8, "FRA"); },
       "Burgundy (Bur) is not a supply centre."},
      {[](GameState& game) { return model::GiveCentre(game, 7, "fra"); }, "\"fra\""},
      {[](GameState& game) { return model::ChangeProvince(game, 8, "FRA", true); },
       "is not a supply centre."},
  };
  for (const RefusalCase& refused : cases) {
    GameState game = Occupied();
    const std::string before = Describe(game);
    EXPECT_THAT(refused.Edit(game), HasSubstr(refused.Says));
    EXPECT_EQ(Describe(game), before) << refused.Says;
  }
}

TEST(Editing, UnitsAreAddedMovedChangedAndRemovedUpToTheBound) {
  GameState game = Occupied();
  EXPECT_EQ(model::AddUnit(game, NewUnit("ITA", "F", "Spa.s")), "");
  EXPECT_EQ(model::AddUnit(game, Dislodged(NewUnit("ITA", "A", "Par"), {})), "");
  EXPECT_EQ(model::MoveUnit(game, 3, "Tyr"), "") << "dislodged it stays";
  EXPECT_EQ(model::MoveUnit(game, 5, "Stp.n"), "") << "within its own place";
  EXPECT_EQ(model::ChangeUnit(game, 1, Before(NewUnit("AUS", "A", "Par"), "unknown")), "");
  model::RemoveUnit(game, 2);
  EXPECT_EQ(DrawUnits(game),
            "AUS A(Par)\nFRA A(Tyr) <Bur\nENG F(NTH)\nRUS F(Stp.n)\nITA F(Spa.s)\nITA A(Par) <\n");
  EXPECT_EQ(game.Units[1].PreviousLocation, "unknown");

  game.Units.SetCount(model::UnitBound);
  EXPECT_THAT(model::AddUnit(game, NewUnit("ENG", "F", "ECH")), HasSubstr("40 units"));
  EXPECT_EQ(model::ChangeUnit(game, 1, NewUnit("ENG", "F", "ECH")), "");
  EXPECT_EQ(game.Units.Count(), model::UnitBound);
}

TEST(Editing, AProvinceIsContestedWithItsCoasts) {
  GameState game = EmptyBoard("Autumn", "retreats");
  const int spain = model::FindProvince(*game.Map, "Spa");
  EXPECT_EQ(model::ChangeProvince(game, spain, "FRA", true), "");
  EXPECT_EQ(Live(game, "Spa").Owner, "FRA");
  EXPECT_EQ(ContestedPlaces(game), "Spa");
  EXPECT_EQ(model::GiveCentre(game, spain, ""), "");
  EXPECT_EQ(Live(game, "Spa").Owner, "");
  EXPECT_EQ(model::ChangeProvince(game, model::FindProvince(*game.Map, "Spa.n"), "", false), "");
  EXPECT_EQ(ContestedPlaces(game), "");
}

}  // namespace
}  // namespace orb::tests
