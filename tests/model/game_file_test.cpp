#include "model/game_file.h"

#include "model/errors.h"
#include "model/game_state.h"
#include "model/small_map.h"
#include "support/boards.h"
#include "support/directories.h"
#include "support/scripted_messages.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <random>
#include <string>
#include <string_view>
#include <vector>

namespace orb::tests {
namespace {

using model::FatalError;
using model::GameState;
using testing::ElementsAre;
using testing::HasSubstr;

/// A situation that keeps traces of an earlier game where a reader may leave them.
GameState EarlierGame() {
  GameState game = model::EmptyGame(SmallMap());
  game.Title = "earlier";
  game.Units.Append({"RUS", "F", "Stp.n", "dislodged", "NTH", "Stp.n"});
  for (model::ProvinceState& province : game.Provinces)
    province = {"TUR", "GER", false};
  game.Countries[1].PlayerName = "Ann";
  game.TextLines.Append("earlier text");
  game.OrdersList = {"RUS F(Stp.n) hold"};
  game.RetreatsList = {"RUS F(Stp.n) disband"};
  game.ReportLines.Append("earlier report");
  game.FileName = "earlier.orb";
  return game;
}

/// A game that uses everything a file can hold, every byte that a text can hold included.
GameState FullGame() {
  GameState game = model::EmptyGame(SmallMap());
  std::string bytes;
  for (int c = 1; c < 256; ++c) {
    if (c != '"' && c != '\r' && c != '\n') bytes += static_cast<char>(c);
  }
  game.Title = " a title, with blanks ";
  game.Season = "Autumn";
  game.Year = -32768;
  game.Stage = model::Stage::Retreats;
  game.Units.Append({"ENG", "A", "Lon", "", "", "Wal"});
  game.Units.Append({"RUS", "F", "Stp.n", "dislodged", "NTH", "unknown"});
  game.Provinces[1] = {"ENG", "FRA", true};
  game.Provinces[2] = {"", "unknown", false};
  game.OrdersList = {"ENG A(Lon) - Wal", "", bytes};
  game.TextLines.Append(bytes);
  game.TextLines.Append("");
  game.Countries[7].PlayerName = "M\xfcller, \x80uro";
  return game;
}

TEST(GameFile, ReadAndWrittenAgainIsTheSameToTheByte) {
  const std::string bytes = model::FormatGameFile(FullGame());
  GameState game = EarlierGame();
  ASSERT_FALSE(model::ParseGameFile(bytes, "f", game));
  EXPECT_EQ(model::FormatGameFile(game), bytes);
  EXPECT_TRUE(game.RetreatsList.empty());
  EXPECT_EQ(game.ReportLines.Count(), 0);
  std::string otherLineEnds;
  for (const char c : bytes) {
    if (c != '\r') otherLineEnds += c;
  }
  ASSERT_FALSE(model::ParseGameFile(otherLineEnds, "f", game));
  EXPECT_EQ(model::FormatGameFile(game), bytes);
}

TEST(GameFile, ATextThatNoRecordCanHoldIsNotWritten) {
  for (const char* text : {"a \"quoted\" word", "two\rlines", "two\nlines"}) {
    GameState game = FullGame();
    game.Title = text;
    EXPECT_THROW(model::FormatGameFile(game), FatalError) << text;
  }
}

TEST(GameFile, FieldsMayBeWrittenInOtherWays) {
  GameState game = EarlierGame();
  ASSERT_FALSE(
      model::ParseGameFile("ORB v5.5\n  a title , Spring ,\"1901\", moves\n 1 \nENG,A,Lpl,,"
                           ",Nrg\n1\nStp.n,x,7,y\n1\nENG A(Lpl) - Lpl\n1\nto Lpl",
                           "f", game));
  EXPECT_EQ(game.Title, "a title");
  EXPECT_EQ(game.Year, 1901);
  EXPECT_EQ(game.Units[1].Location + game.Units[1].PreviousLocation, "WalNWG");
  EXPECT_TRUE(game.Provinces[5].Uncontested) << "any number but 0";
  EXPECT_EQ(game.Provinces[4].Owner, "TUR") << "a row that the file does not mention";
  EXPECT_THAT(game.OrdersList, ElementsAre("ENG A(Wal) - Lpl"));
  EXPECT_EQ(game.TextLines[1], "to Wal");
  EXPECT_EQ(game.Countries[1].PlayerName, "");
}

TEST(GameFile, OfEveryVersionIsRead) {
  const std::string plain = "\"Spring\",1901,\"moves\"\n";
  const std::string titled = "\"T\",\"Spring\",1901,\"moves\"\n";
  const std::string unit4 = "1\n\"ENG\",\"A\",\"Lon\",\"\"\n";
  const std::string unit5 = "1\n\"ENG\",\"A\",\"Lon\",\"dislodged\",\"Wal\"\n";
  const std::string unit6 = "1\n\"ENG\",\"A\",\"Lon\",\"dislodged\",\"Wal\",\"Lpl\"\n";
  const std::string two = "1\n\"Lon\",\"ENG\"\n";
  const std::string three = "1\n\"Lon\",\"ENG\",0\n";
  const std::string four = "1\n\"Lon\",\"ENG\",0,\"FRA\"\n";
  struct Case {
    std::string Bytes, Read;  ///< title, the unit's places, whether uncontested, previous owner
  };
  const std::vector<Case> cases = {
      {plain + unit4 + two, "CONCORDAT NTH unknown 1 GER"},
      {"\"ORB v0.1\"\n" + plain + unit4 + two, "CONCORDAT NTH unknown 1 GER"},
      {"\"ORB v0.2\"\n" + plain + unit4 + three, "CONCORDAT NTH unknown 0 unknown"},
      {"\"ORB v0.5\"\n" + plain + unit4 + three, "CONCORDAT NTH unknown 0 unknown"},
      {"\"ORB v0.6\"\n" + plain + unit5 + three, "CONCORDAT Wal unknown 0 unknown"},
      {"\"ORB v0.7\"\n" + titled + unit5 + three, "T Wal unknown 0 unknown"},
      {"\"ORB v2.1\"\n" + titled + unit5 + three, "T Wal unknown 0 unknown"},
      {"\"ORB v2.2\"\n" + titled + unit6 + three, "T Wal Wal 0 unknown"},
      {"\"ORB v2.5\"\n" + titled + unit6 + three, "T Wal Wal 0 unknown"},
      {"\"ORB v2.6\"\n" + titled + unit6 + four, "T Wal Wal 0 FRA"},
      {"\"ORB v5.5\"\n" + titled + unit6 + four, "T Wal Wal 0 FRA"},
      {"ORB v10\n" + titled + unit6 + four, "T Wal Wal 0 FRA"},
  };
  for (const Case& c : cases) {
    SCOPED_TRACE(c.Bytes);
    GameState game = EarlierGame();
    ASSERT_FALSE(model::ParseGameFile(c.Bytes + "1\n\"an order\"\n", "f", game));
    const model::Unit& unit = game.Units[1];
    const model::ProvinceState& place = game.Provinces[1];
    EXPECT_EQ(game.Title + " " + unit.DislodgedFrom + " " + unit.PreviousLocation +
                  (place.Uncontested ? " 1 " : " 0 ") + place.PreviousOwner,
              c.Read);
    EXPECT_EQ(game.Season + std::to_string(game.Year) + std::string(StageText(game)) + place.Owner,
              "Spring1901movesENG");
    EXPECT_THAT(game.OrdersList, ElementsAre("an order"));
    EXPECT_EQ(game.TextLines.Count(), 0);
    EXPECT_EQ(game.Countries[1].PlayerName, "");
  }
}

TEST(GameFile, TextAndPlayersMayBeMissing) {
  const std::vector<std::pair<std::string, std::string>> cases = {
      {"", "0 "},
      {"\r\n \r\n", "0 "},
      {"2\none\ntwo\n", "2 "},
      {"0\n0\n", "0 Ann"},
      {"0\n2\n\"XYZ\",\"Nobody\"\n\"ENG\",\"Bob\"\n", "0 Bob"}};
  for (const auto& [tail, textsAndPlayer] : cases) {
    GameState game = EarlierGame();
    const std::string bytes = "\"ORB v5.5\"\n\"T\",\"Spring\",1901,\"moves\"\n0\n0\n0\n" + tail;
    ASSERT_FALSE(model::ParseGameFile(bytes, "f", game)) << tail;
    EXPECT_EQ(std::to_string(game.TextLines.Count()) + " " + game.Countries[1].PlayerName,
              textsAndPlayer)
        << tail;
  }
}

TEST(GameFile, WhatStandsBehindItsEndIsTold) {
  const std::string bytes = model::FormatGameFile(FullGame());
  for (const auto& [tail, says] : std::vector<std::pair<std::string, std::string>>{
           {"", ""}, {"\r\n  \n", ""}, {"\r\n\r\nx", "f.orb, line 28: what stands behind"}}) {
    GameState game = EarlierGame();
    std::string remark = "none";
    ASSERT_FALSE(model::ParseGameFile(bytes + tail, "f.orb", game, &remark));
    EXPECT_EQ(model::FormatGameFile(game), bytes);
    EXPECT_EQ(remark.empty(), says.empty());
    EXPECT_THAT(remark, testing::StartsWith(says));
  }
}

/// Reads the bytes; whatever they are, they are refused in words or read whole.
bool ReadsOrRefuses(const std::string& bytes, const GameState& before, std::string& reason) {
  GameState game = before;
  try {
    const auto unknown = model::ParseGameFile(bytes, "game.orb", game);
    if (!unknown) return true;
    reason = "unknown location " + *unknown;
  } catch (const FatalError& error) {
    reason = error.what();
  }
  EXPECT_EQ(Describe(game), Describe(before)) << "changed though refused: " << reason;
  return false;
}

TEST(GameFile, ABrokenOneIsRefusedAndChangesNothing) {
  const std::string head = "\"ORB v5.5\"\n\"T\",\"Spring\",1901,\"moves\"\n";
  const std::vector<std::pair<std::string, std::string>> cases = {
      {"", "game.orb is no game file."},
      {"# A readme\n\nwith, a \"word\"\n", "game.orb is no game file."},
      {"\"a lone quote\n", "game.orb is no game file."},
      {"\"ORB v5.5\n", "line 1: expected a header, found a text without its closing quote."},
      {"\"ORB v5.5\"\n\"T\",\"Spring\",year,\"moves\"\n", "a year"},
      {"\"ORB v5.5\"\nThe \"T\",Spring,1901,moves\n",
       "line 2: expected a title, found a double quote in a text that does not begin with one."},
      {"\"ORB v5.5\"\n\"T\",\"Spring\",32768,\"moves\"\n", "32768"},
      {head + "ma\x1b\x7fny\n",
       "line 3: expected the number of units (a whole number), found \"ma??ny\"."},
      {head + "41\n", "0 to 40"},
      {head + "-1\n", "0 to 40"},
      {head + "0\n-1\n", "the number of locations (0 to 32767), found -1."},
      {head + "0\n0\n-1\n", "the number of orders (0 to 32767), found -1."},
      {head + "0\n0\n0\n0\n-7\n", "the number of powers (0 to 32767), found -7."},
      {head + "1\n\"XXX\",\"A\",\"Lon\"",
       "game.orb, line 4: expected a unit's power (one of ENG, FRA, "
       "GER, RUS, TUR, AUS, ITA), found \"XXX\"."},
      {head + "1\n\"ENG\",\"B\",\"Lon\"", "line 4: expected a unit's type (A or F), found \"B\"."},
      {head + "0\n1\n\"Lon\",\"ENG\",true,\"\"\n", "uncontested"},
      {head + "0\n1\n\"Xyz\",\"ENG\",0,\"\"\n", "unknown location Xyz"},
      {head + "1\nENG,A," + std::string(1000, 'x') + ",,,\n0\n0\n",
       "ENG A(xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx...)."},
      {head + "0\n0\n3\none\n", "an order"},
      {head + "0\n0\n0\n101\n", "0 to 100"},
      {head + "0\n0\n0\n1\n", "a text line"},
      {head + "0\n0\n0\n0\nseven\n", "number of powers"},
      {head + "0\n0\n1\n\"no closing quote\n", "closing quote"},
      {head + "0\n0\n1\n\"more\" behind\n", "closing quote"},
  };
  for (const auto& [bytes, says] : cases) {
    std::string reason;
    EXPECT_FALSE(ReadsOrRefuses(bytes, EarlierGame(), reason)) << bytes;
    EXPECT_THAT(reason, HasSubstr(says)) << bytes;
  }
}

TEST(GameFile, CutOffAnywhereIsReadOrRefused) {
  const std::string bytes = model::FormatGameFile(FullGame());
  const GameState before = EarlierGame();
  std::string reason;
  int read = 0;
  for (std::size_t size = 0; size <= bytes.size(); ++size)
    read += ReadsOrRefuses(bytes.substr(0, size), before, reason) ? 1 : 0;
  EXPECT_GE(read, 3) << "whole, and without its last sections";
  EXPECT_LT(read, 20);
}

TEST(GameFile, DamagedAnywhereIsReadOrRefused) {
  const std::string bytes = model::FormatGameFile(FullGame());
  const GameState before = EarlierGame();
  std::mt19937 random(1);
  std::string reason;
  int read = 0;
  for (int i = 0; i < 5000; ++i) {
    std::string damaged = bytes;
    for (auto changes = 1 + random() % 4; changes > 0; --changes) {
      const std::string byte(1, ",\"\r\n 0-9\xff\0"[random() % 11]);
      const std::string piece = random() % 4 == 0 ? damaged.substr(random() % damaged.size(), 30)
                                                  : byte.substr(0, random() % 2);
      damaged.replace(random() % damaged.size(), random() % 4 == 0 ? 20 : random() % 2, piece);
    }
    read += ReadsOrRefuses(damaged, before, reason) ? 1 : 0;
  }
  EXPECT_GT(read, 100);
  EXPECT_LT(read, 4900);
}

}  // namespace
}  // namespace orb::tests
