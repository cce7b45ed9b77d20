#include "adjudication/stages.h"

#include "model/errors.h"
#include "model/seasons.h"
#include "support/scripted_messages.h"
#include "support/situation.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace orb::tests {
namespace {

using model::GameState;
using model::Icon;
using testing::ElementsAre;
using testing::Pair;

/// A situation with these units and their orders of the stage.
GameState Draw(std::string_view season, std::string_view stage,
               const std::vector<std::string>& lines) {
  GameState game = EmptyBoard(season, stage);
  auto& list = stage == "moves"      ? game.OrdersList
               : stage == "retreats" ? game.RetreatsList
                                     : game.AdjustmentsList;
  for (const std::string& line : lines) {
    const std::string order = AddDrawnUnit(game, line);
    if (!order.empty()) list.push_back(order);
  }
  return game;
}

void SetOwner(GameState& game, const std::string& place, const std::string& power) {
  game.Provinces[model::FindProvince(*game.Map, place)].Owner = power;
}

TEST(Stages, TheReportOfAYearToTheLetter) {
  GameState game = Draw("Autumn", "moves",
                        {"  ENG F(ECH) - Bre  ", "FRA A(Bur) - Ruh", "FRA A(Bur) hold",
                         "GER A(Mun) - Bur", "GER A(Ruh) S A(Mun) - Bur", "GER F(Kie)"});
  ASSERT_EQ(game.Units.Count(), 4);
  AddDrawnUnit(game, "ENG F(ECH)");
  ScriptedMessages messages;
  adjudication::ResolveStage(game, messages);
  EXPECT_THAT(Lines(game.ReportLines),
              ElementsAre("  ENG F(ECH) - Bre  ", "[ FRA A(Bur) - Ruh ]  ",
                          "[ FRA A(Bur) hold ]  dislodged", "  GER A(Mun) - Bur  ",
                          "  GER A(Ruh) S A(Mun) - Bur  ", "  GER F(Kie) unordered; hold  "));
  EXPECT_TRUE(game.OrdersList.empty());
  ASSERT_EQ(game.Stage, "retreats");

  game.RetreatsList = {"FRA A(Bur) retreat Ruh"};
  adjudication::ResolveStage(game, messages);
  EXPECT_EQ(game.ReportLines[3], "[ FRA A(Bur) hold ]  dislodged retreat Ruh failed disband");
  EXPECT_EQ(game.ReportLines.Count(), 6);
  EXPECT_TRUE(game.RetreatsList.empty());
  ASSERT_EQ(game.Stage, "adjustments");

  for (const char* place : {"Ber", "Den", "Mun"})
    SetOwner(game, place, "GER");
  game.AdjustmentsList = {" ger build A(Ber)", "GER build A(Mun) ", "GER build A(Mun)"};
  adjudication::ResolveStage(game, messages);
  std::vector<std::string> block = Lines(game.ReportLines);
  block.erase(block.begin(), block.begin() + 6);
  EXPECT_THAT(block, ElementsAre("ADJUSTMENTS", "ger build A(Ber)  ", "[ GER build A(Mun) ]  clash",
                                 "[ GER build A(Mun) ]  clash"));
}

TEST(Stages, BoxesWithoutAChoiceShowTheirIcons) {
  ScriptedMessages messages;
  GameState convoy = Draw("Spring", "moves", {"ENG A(Lon) - Bel", "ENG F(NTH) C A(Lon) - Bel"});
  adjudication::ResolveStage(convoy, messages);
  GameState surplus = Draw("Autumn", "adjustments", {"ENG A(Lon)"});
  adjudication::ResolveStage(surplus, messages);
  EXPECT_THAT(messages.Shown, ElementsAre(Pair("Convoys are not fully checked.", Icon::Information),
                                          Pair("Error: ENG too many units.", Icon::Exclamation)));
  EXPECT_EQ(surplus.Stage, "adjustments");
}

TEST(Stages, BuildingEndsAtFortyUnits) {
  GameState game = EmptyBoard("Autumn", "adjustments");
  for (int i = 1; i < model::UnitBound; ++i)
    game.Units.Append().Location = "NTH";
  for (const char* place : {"Edi", "Lon", "Lvp"}) {
    SetOwner(game, place, "ENG");
    game.AdjustmentsList.push_back("ENG build A(" + std::string(place) + ")");
  }
  ScriptedMessages messages;
  EXPECT_TRUE(adjudication::ResolveStage(game, messages).Completed);
  EXPECT_EQ(game.Units.Count(), model::UnitBound);
  EXPECT_EQ(game.Units[model::UnitBound].Location, "Edi");
  EXPECT_THAT(messages.Shown, ElementsAre(Pair("Too many units", Icon::Stop)));
  EXPECT_EQ(game.Stage, "finished");
  EXPECT_EQ(game.ReportLines.Count(), 4);
}

TEST(Stages, TablesHaveBounds) {
  struct Case {
    std::string_view Name;
    std::string_view Stage;
    std::string Unit;
    std::string Order;
    int Orders;
    int ReportLines;
    bool Fits;
  };
  const std::vector<Case> cases = {
      {"80 orders", "moves", "ENG A(Lon)", "ENG A(Lon) hold", 80, 0, true},
      {"81 orders", "moves", "ENG A(Lon)", "ENG A(Lon) hold", 81, 0, false},
      {"room for the order of a unit", "moves", "ENG A(Lon)", "ENG A(Edi) hold", 79, 0, true},
      {"no room for it", "moves", "ENG A(Lon)", "ENG A(Edi) hold", 80, 0, false},
      {"80 retreats", "retreats", "ENG A(Lon) <Wal", "ENG A(Edi) disband", 79, 99, true},
      {"81 retreats", "retreats", "ENG A(Lon) <Wal", "ENG A(Edi) disband", 80, 0, false},
      {"100 lines", "retreats", "ENG A(Lon) <Wal", "ENG A(Lon) disband", 1, 99, true},
      {"101 lines", "retreats", "ENG A(Lon) <Wal", "ENG A(Lon) disband", 1, 100, false},
      {"adjustments to 100 lines", "adjustments", "", "ENG disband A(Lon)", 2, 97, true},
      {"adjustments to 101 lines", "adjustments", "", "ENG disband A(Lon)", 2, 98, false},
  };
  for (const Case& c : cases) {
    SCOPED_TRACE(c.Name);
    std::vector<std::string> lines(static_cast<std::size_t>(c.Orders), c.Order);
    GameState game = EmptyBoard("Spring", c.Stage);
    AddDrawnUnit(game, c.Unit);
    (c.Stage == "moves"      ? game.OrdersList
     : c.Stage == "retreats" ? game.RetreatsList
                             : game.AdjustmentsList) = std::move(lines);
    game.ReportLines.SetCount(c.ReportLines);
    const std::string before = Describe(game);
    ScriptedMessages messages;
    if (c.Fits) {
      EXPECT_TRUE(adjudication::ResolveStage(game, messages).Completed);
    } else {
      EXPECT_THROW(adjudication::ResolveStage(game, messages), model::IndexOutOfRange);
      EXPECT_EQ(Describe(game), before);
    }
  }
}

TEST(Stages, OnlyThreeStagesCanBeResolved) {
  ScriptedMessages messages;
  for (const char* stage : {"finished", "", "Moves"}) {
    GameState game = EmptyBoard("Spring", stage);
    EXPECT_THROW(adjudication::ResolveStage(game, messages), model::FatalError) << stage;
  }
}

TEST(Stages, UndoTakesBackASeasonWithItsRetreats) {
  GameState game = Draw(
      "Spring", "moves",
      {"GER A(Mun) - Bur", "GER A(Ruh) S A(Mun) - Bur", "FRA A(Bur) hold", "ENG F(NTH) - Nwy"});
  SetOwner(game, "Nwy", "RUS");
  const std::string units = DrawUnits(game);
  ScriptedMessages messages;
  adjudication::ResolveStage(game, messages);
  game.RetreatsList = {"FRA A(Bur) retreat Par"};
  adjudication::ResolveStage(game, messages);
  ASSERT_EQ(game.Stage, "finished");
  ASSERT_NE(DrawUnits(game), units);
  ASSERT_TRUE(model::UndoSeason(game, messages));
  EXPECT_EQ(DrawUnits(game), units);
  EXPECT_EQ(game.Stage, "moves");
  EXPECT_EQ(game.Provinces[model::FindProvince(*game.Map, "Nwy")].Owner, "RUS");
  EXPECT_TRUE(messages.Questions.empty());
}

}  // namespace
}  // namespace orb::tests
