#include "json/situation.h"

#include "model/errors.h"
#include "model/game_file.h"
#include "support/boards.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <random>
#include <string>
#include <vector>

namespace orb::tests {
namespace {

using model::GameState;

/// Games of all that a file can hold, possible or not.
class Dice {
 public:
  explicit Dice(unsigned seed) : random_(seed) {}

  int Below(int bound) { return static_cast<int>(random_() % static_cast<unsigned>(bound)); }

  /// Any bytes but those that no game file holds; often none.
  std::string Text() {
    std::string text;
    for (int length = Below(2) * Below(30); length > 0; --length) {
      const char c = static_cast<char>(Below(256));
      if (c != '"' && c != '\r' && c != '\n') text += c;
    }
    return text;
  }

  std::string Place(const model::Map& map) {
    return map.Provinces[1 + Below(map.Provinces.Count())].Name;
  }

  GameState Game() {
    GameState game = model::EmptyGame(RealMap());
    game.Title = Text();
    game.Season = Text();
    game.Year = static_cast<std::int16_t>(Below(65536) - 32768);
    game.Stage = static_cast<model::Stage>(Below(5));
    if (game.Stage == model::Stage::Other) game.OtherStage = Text();
    for (int i = Below(model::UnitBound + 1); i > 0; --i) {
      game.Units.Append({std::string(model::PowerName(1 + Below(7))), Below(2) == 0 ? "A" : "F",
                         Place(*game.Map), Text(), Text(), Text()});
    }
    for (model::ProvinceState& province : game.Provinces)
      province = {Text(), Text(), Below(2) == 0};
    for (int i = Below(50); i > 0; --i)
      game.OrdersList.push_back(Text());
    for (int i = Below(model::TextLineBound + 1); i > 0; --i)
      game.TextLines.Append(Text());
    for (model::Country& country : game.Countries)
      country.PlayerName = Text();
    return game;
  }

 private:
  std::mt19937 random_;
};

TEST(JsonSituation, EveryGameComesBackByteForByteInPlaceOfAnyOther) {
  GameState read = model::EmptyGame(RealMap());
  for (unsigned seed = 1; seed <= 300; ++seed) {
    const GameState game = Dice(seed).Game();
    const std::string text = json::SituationText(game);
    json::ReadSituation(text, read);
    ASSERT_EQ(model::FormatGameFile(read), model::FormatGameFile(game)) << seed << ": " << text;
    ASSERT_EQ(text.find('\n'), std::string::npos);
  }
}

TEST(JsonSituation, WhatIsNoSituationIsRefusedWithItsPlace) {
  const std::string head = R"({"format":"orb","version":1,"situation":)";
  const auto with = [&](const std::string& members) {
    return head + R"({"title":"T","season":"S","year":1901,"stage":"moves","units":[])" + members +
           "}}";
  };
  const auto unit = [&](const std::string& fields) {
    return head + R"({"title":"T","season":"S","year":1901,"stage":"moves","units":[{)" + fields +
           "}]}}";
  };
  const std::string deep(100000, '[');
  struct Case {
    std::string Text, Sentence;
  };
  const std::vector<Case> cases = {
      {"", "This is no JSON: line 1, column 1: The document is empty."},
      {"{\"format\":\n  nan}", "This is no JSON: line 2, column 4: Invalid value."},
      {"{\"format\":1e999}", "This is no JSON: line 1, column 11: Number too big"},
      {deep, "This is no JSON: line 1, column 100001: Invalid value."},
      {deep + std::string(100000, ']'), "The whole: expected an object, found an array."},
      {"{} {}", "This is no JSON: line 1, column 4: The document root must not be followed"},
      {std::string("{}\0", 3), "This is no JSON: line 1, column 3: A NUL."},
      {with(R"(,"texts":["\ud800"])"), "This is no JSON: line 1, column 116: The surrogate pair"},
      {with(",\"texts\":[\"\xED\xA0\x80\"]"), "This is no JSON: line 1, column"},
      {with(",\"texts\":[\"\xC3(\"]"), "This is no JSON: line 1, column"},
      {"[]", "The whole: expected an object, found an array."},
      {"{}", "The whole has no \"situation\"."},
      {R"({"format":"orc","version":1})", "format: expected \"orb\", found \"orc\"."},
      {R"({"version":2})", "version: expected 1, found 2."},
      {R"({"situation":7})", "situation: expected an object, found 7."},
      {head + "{}}", "situation lacks its title, season, year, stage or units."},
      {head + R"({"title":"a","title":"b"}})", "situation.title is there twice."},
      {with(R"(,"colour":1)"), "situation.colour is not known here."},
      {head + R"({"year":1901.5}})",
       "situation.year: expected a whole number from -32768 to 32767, found a number."},
      {head + R"({"year":40000}})",
       "situation.year: expected a whole number from -32768 to 32767, found 40000."},
      {head + R"({"title":null}})", "situation.title: expected a text, found null."},
      {head + R"({"title":"\u0142"}})",
       "situation.title has a character without an 8-bit form (Windows-1252)."},
      {head + R"({"title":"a\nb"}})",
       "situation.title has a double quote or a line end, which game files cannot hold."},
      {unit(R"("power":"XYZ")"),
       "situation.units[0].power: expected a power (one of ENG, FRA, GER, RUS, TUR, AUS, ITA), "
       "found \"XYZ\"."},
      {unit(R"("type":"a")"), "situation.units[0].type: expected \"A\" or \"F\", found \"a\"."},
      {unit(R"("location":"\u00fcber")"),
       "situation.units[0].location: expected a location of the map, found \"\xFC"
       "ber\"."},
      {unit(R"("power":"ENG","type":"A")"),
       "situation.units[0] lacks its power, its type or its location."},
      {with(R"(,"provinces":{"Lon":{},"Lon":{}})"), "situation.provinces.Lon is there twice."},
      {with(R"(,"provinces":{"lon":{}})"), "situation.provinces.lon is no location of the map."},
      {with(R"(,"provinces":{"Lon":{"contested":1}})"),
       "situation.provinces.Lon.contested: expected true or false, found 1."},
      {with(R"(,"players":{"ENG ":"x"})"), "situation.players.ENG  is no power."},
      {with(R"(,"texts":)" + ("[" + std::string(400, ' ') + "0") +
            [] {
              std::string s;
              for (int i = 0; i < 100; ++i)
                s += ",0";
              return s;
            }() +
            "]"),
       "situation.texts has more than 100 items."},
  };
  for (const auto& [text, sentence] : cases) {
    GameState game = model::EmptyGame(RealMap());
    try {
      json::ReadSituation(text, game);
      ADD_FAILURE() << "read: " << text.substr(0, 300);
    } catch (const model::FatalError& error) {
      EXPECT_THAT(error.what(), testing::StartsWith(sentence)) << text.substr(0, 300);
    }
  }
}

}  // namespace
}  // namespace orb::tests
