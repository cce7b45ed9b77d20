#include "model/seasons.h"

#include "model/errors.h"
#include "model/messages.h"
#include "model/new_game.h"
#include "support/boards.h"
#include "support/directories.h"
#include "support/scripted_messages.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace orb::tests {
namespace {

using model::GameState;
using testing::ElementsAre;
using testing::HasSubstr;

/// A situation with something in every place that a command may have to clear.
GameState UsedGame() {
  GameState game = Board("Autumn", "retreats", {"RUS F(Nwy) <Swe"});
  game.Title = "Used";
  game.Units[1].PreviousLocation = "Stp.n";
  for (model::ProvinceState& province : game.Provinces)
    province = {"TUR", "GER", false};
  game.OrdersList = game.RetreatsList = game.AdjustmentsList = {"a line"};
  game.ReportLines.Append("a line");
  game.TextLines.Append("a line");
  game.Countries[3].PlayerName = "Ann";
  game.FileName = "used.orb";
  return game;
}

void ExpectCleared(GameState& game) {
  EXPECT_EQ(model::Caption(game), model::ProgramName);
  EXPECT_EQ(game.Season + std::to_string(game.Year) + std::string(StageText(game)),
            "Spring1901moves");
  EXPECT_TRUE(game.OrdersList.empty() && game.RetreatsList.empty() && game.AdjustmentsList.empty());
  EXPECT_EQ(game.TextLines.Count() + game.ReportLines.Count(), 0);
  EXPECT_EQ(game.FileName + game.Countries[3].PlayerName, "");
  for (const model::ProvinceState& province : game.Provinces)
    EXPECT_TRUE(province.Uncontested && province.PreviousOwner.empty());
}

TEST(NewGame, SetsUpTheStartOrAnEmptyBoard) {
  GameState game = UsedGame();
  EXPECT_EQ(model::Caption(game), std::string(model::ProgramName) + " Used");
  model::NewGame(game, DataDirectory());
  ExpectCleared(game);
  ASSERT_EQ(game.Units.Count(), 22);
  EXPECT_EQ(DrawUnits(game).substr(0, 22), "ENG F(Lon)\nENG F(Edi)\n");
  EXPECT_EQ(game.Units[1].PreviousLocation, "");
  EXPECT_EQ(Live(game, "Stp").Owner, "RUS") << "its fleet stands on a coast";
  EXPECT_EQ(Live(game, "Stp.s").Owner, "");
  EXPECT_EQ(Live(game, "Nwy").Owner, "");
  game = UsedGame();
  model::BlankGame(game, DataDirectory());
  ExpectCleared(game);
  EXPECT_EQ(game.Units.Count(), 0);
  for (int p = 1; p <= game.Provinces.Count(); ++p)
    EXPECT_EQ(game.Provinces[p].Owner, game.Map->Provinces[p].HomeCountry);
}

TEST(NewGame, ABrokenStartFileChangesNothing) {
  std::string units = "\"Spring\",1901\r\n";
  for (int i = 0; i < 41; ++i)
    units += "\"ENG\",\"A\",\"Lon\"\r\n";
  for (const std::string& bytes : std::vector<std::string>{
           "", "\"Spring\"", "\"Spring\",soon", units, "\"Spring\",1901\r\n\"ENG\",\"A\"",
           "\"Spring\",1901\r\n\"ENG\",\"A\",\"Xyz\"", "Sp\"ring,1901",
           "\"Spring\",1901\r\n\"XXX\",\"A\",\"Lon\""}) {
    const TemporaryDirectory directory;
    directory.Write("start.dat", bytes);
    GameState game = UsedGame();
    EXPECT_THAT([&] { model::NewGame(game, directory.Path()); },
                testing::ThrowsMessage<model::FileError>(HasSubstr("start.dat, line ")))
        << bytes;
    EXPECT_EQ(Describe(game), Describe(UsedGame())) << bytes;
  }
  GameState game = UsedGame();
  EXPECT_THROW(model::BlankGame(game, "/nowhere"), model::FileError);
  EXPECT_EQ(Describe(game), Describe(UsedGame()));
}

TEST(NextSeason, FollowsTheCalendar) {
  const std::vector<std::tuple<std::string, std::int16_t, std::string>> cases = {
      {"Spring", 1901, "Autumn1901"},
      {"Autumn", 1901, "Spring1902"},
      {"", -1, "Spring0"},
      {"Spring", 32767, "Autumn32767"},
      {"spring", 1901, "Spring1902"}};
  for (const auto& [season, year, after] : cases) {
    GameState game = UsedGame();
    game.Season = season;
    game.Year = year;
    const std::string units = DrawUnits(game);
    model::NextSeason(game);
    EXPECT_EQ(game.Season + std::to_string(game.Year), after);
    EXPECT_EQ(game.Stage, model::Stage::Moves);
    EXPECT_TRUE(game.OrdersList.empty());
    EXPECT_EQ(game.TextLines.Count(), 0);
    EXPECT_EQ(game.FileName, "");
    EXPECT_EQ(DrawUnits(game), units);
    EXPECT_EQ(game.Units[1].PreviousLocation + Live(game, "Nwy").Owner, "Stp.nTUR");
  }
  GameState last = UsedGame();
  last.Year = 32767;
  const std::string before = Describe(last);
  EXPECT_THROW(model::NextSeason(last), model::FatalError);
  EXPECT_EQ(Describe(last), before);
}

TEST(UndoSeason, PutsUnitsAndOwnersBack) {
  GameState game = UsedGame();
  game.Stage = model::Stage::Finished;
  const std::string before = Describe(game);
  ScriptedMessages messages;
  EXPECT_FALSE(model::UndoSeason(game, messages)) << "a finished autumn";
  EXPECT_EQ(messages.Shown.at(0).first, "Original supply centre ownerships unknown;\rcan't undo.");
  EXPECT_EQ(Describe(game), before);
  game.Season = "Spring";
  EXPECT_TRUE(model::UndoSeason(game, messages));
  EXPECT_EQ(DrawUnits(game), "RUS F(Stp.n)\n");
  EXPECT_EQ(game.Units[1].DislodgedFrom + game.Units[1].PreviousLocation, "");
  EXPECT_EQ(Live(game, "Nwy").Owner, "GER");
  EXPECT_EQ(game.Stage, model::Stage::Moves);
  EXPECT_TRUE(messages.Questions.empty());
}

TEST(UndoSeason, LosesUnitsWithoutAKnownStartWhenTheUserAgrees) {
  GameState game = UsedGame();
  for (const char* unit : {"ENG A(Lon)", "FRA A(Par)", "ITA A(Rom)"})
    AddDrawnUnit(game, unit);
  game.Units[3].PreviousLocation = "unknown";
  game.Units[4].PreviousLocation = "Ven";
  game.Provinces[90 - 9].PreviousOwner = "unknown";
  const std::string before = Describe(game);
  ScriptedMessages no({model::Answer::No});
  EXPECT_FALSE(model::UndoSeason(game, no));
  EXPECT_EQ(Describe(game), before);
  EXPECT_THAT(no.Questions,
              ElementsAre("2 units do not have original locations recorded.\rContinue?"));
  ScriptedMessages yes;
  EXPECT_TRUE(model::UndoSeason(game, yes));
  EXPECT_EQ(DrawUnits(game), "RUS F(Stp.n)\nITA A(Ven)\n");
  EXPECT_EQ(Live(game, "Nwy").Owner, "TUR") << "one unknown owner leaves all as they are";
  game = UsedGame();
  game.Units[1].PreviousLocation = "Xyz";
  EXPECT_THROW(model::UndoSeason(game, yes), model::IndexOutOfRange);
  EXPECT_EQ(DrawUnits(game), DrawUnits(UsedGame()));
  game.Units[1].PreviousLocation.clear();
  EXPECT_TRUE(model::UndoSeason(game, yes));
  EXPECT_EQ(yes.Questions.back(), "1 units do not have original locations recorded.\rContinue?");
}

}  // namespace
}  // namespace orb::tests
