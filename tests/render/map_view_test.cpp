#include "render/map_view.h"

#include "model/errors.h"
#include "render/recorder.h"
#include "support/situation.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <string>
#include <vector>

namespace orb::tests {
namespace {

using model::GameState;
using render::MapMode;
using render::MapOptions;
using ::testing::ElementsAre;

/// A board of the stage with the units drawn as "FRA A(Bur) <Mun".
GameState Board(std::string_view stage, const std::vector<std::string>& units) {
  GameState game = EmptyBoard("Spring", stage);
  for (const std::string& unit : units)
    AddDrawnUnit(game, unit);
  return game;
}

model::ProvinceState& Live(GameState& game, std::string_view name) {
  return game.Provinces[model::FindProvince(*game.Map, name)];
}

std::string LabelAt(const GameState& game, std::string_view name) {
  const model::Province& place = game.Map->Provinces[model::FindProvince(*game.Map, name)];
  return At({place.LabelX * 10000.0, place.LabelY * 8000.0});
}

std::string UnitAt(const GameState& game, std::string_view name) {
  const model::Province& place = game.Map->Provinces[model::FindProvince(*game.Map, name)];
  return At({place.UnitX * 10000.0, place.UnitY * 8000.0});
}

/// The kinds of strokes in their order, repetitions and the texts of labels left out.
std::string Order(const Recorder& surface) {
  std::string order;
  std::string last;
  for (const Stroke& stroke : surface.Strokes) {
    std::string kind = stroke.Kind == "line" && stroke.Pen > 1 ? "attack" : stroke.Kind;
    if (stroke.Kind == "circle") {
      kind = stroke.Width < 60 ? "dot" : stroke.Width < 100 ? "small" : "unit";
    }
    if (kind != last) order.append(order.empty() ? "" : " ").append(kind);
    last = kind;
  }
  return order;
}

TEST(MapView, BackgroundFollowsTheMode) {
  const std::vector<std::pair<MapMode, std::string>> cases = {
      {MapMode::Colour3D, "dir/map.bmp"},
      {MapMode::Colour, "dir/map.bmp"},
      {MapMode::Grey, "dir/mapgrey.bmp"},
      {MapMode::BlackWhite, "dir/mapbw.bmp"}};
  for (const auto& [mode, file] : cases) {
    Recorder surface;
    RenderMap(Board("moves", {}), {mode}, "dir", surface);
    EXPECT_EQ(surface.Strokes.front().Kind, "picture");
    EXPECT_EQ(surface.Strokes.front().Text, file);
  }
}

TEST(MapView, NothingIsDrawnWithoutABackground) {
  Recorder surface;
  surface.PictureMissing = true;
  EXPECT_THROW(RenderMap(Board("moves", {}), {}, "dir", surface), model::FileError);
  EXPECT_TRUE(surface.Strokes.empty());
}

TEST(MapView, StepsPaintOverEarlierOnes) {
  GameState game =
      Board("retreats", {"FRA A(Mun)", "GER A(Mun) <Bur", "ENG A(Lon)", "ENG A(Wal) <Cly"});
  Live(game, "Par").Uncontested = false;
  Live(game, "Bre").Owner = "FRA";
  Recorder surface;
  RenderMap(game, {MapMode::Colour, true, false, true}, "", surface);
  const std::string steps = Order(surface);
  const std::string end =
      "text line attack unit small polygon box text box text box text box "
      "text box text box text box text";
  ASSERT_GT(steps.size(), end.size());
  EXPECT_EQ(steps.substr(0, 12), "picture text");
  EXPECT_EQ(steps.substr(steps.size() - end.size()), end);
}

TEST(MapView, LabelIsCentredAndACoastShowsItsLetter) {
  Recorder surface;
  const GameState game = Board("moves", {});
  RenderMap(game, {}, "", surface);
  const auto texts = surface.All("text");
  ASSERT_EQ(static_cast<int>(texts.size()), game.Provinces.Count() + 3);
  for (int row = 1; row <= game.Provinces.Count(); ++row) {
    const std::string& name = game.Map->Provinces[row].Name;
    const Stroke& text = texts[static_cast<std::size_t>(row - 1)];
    EXPECT_EQ(text.Text, name.size() == 3 ? name : name.substr(4)) << name;
    const double half = 50.0 * static_cast<double>(text.Text.size());
    const render::Point corner = text.Points.front();
    EXPECT_EQ(At({corner.X + half, corner.Y + 100}), LabelAt(game, name)) << name;
    EXPECT_EQ(text.Fore, 0U);
    EXPECT_FALSE(text.Bold);
  }
}

TEST(MapView, EveryCentreHasItsDotBelowTheLabel) {
  const GameState game = Board("moves", {});
  Recorder surface;
  RenderMap(game, {}, "", surface);
  const auto dots = surface.All("circle");
  ASSERT_EQ(dots.size(), 34U);
  std::size_t next = 0;
  for (const model::Province& place : game.Map->Provinces) {
    if (place.IsSupplyCentre == 0) continue;
    const Stroke& dot = dots[next++];
    EXPECT_EQ(At(dot.Points.front()), At({place.LabelX * 10000.0, place.LabelY * 8000.0 + 120}));
    EXPECT_EQ(dot.Width, 45);
    EXPECT_TRUE(dot.Filled && dot.Fill == 0 && dot.Fore == 0 && dot.Pen == 1) << place.Name;
  }
}

TEST(MapView, BoxInTheOwnersColourOnlyForOwnedCentres) {
  GameState game = Board("moves", {});
  Live(game, "Par").Owner = "FRA";
  Live(game, "Tun").Owner = "fra";
  Live(game, "Spa.n").Owner = "FRA";
  for (const MapMode mode : {MapMode::Colour, MapMode::BlackWhite}) {
    Recorder surface;
    RenderMap(game, {mode, false, true, false}, "", surface);
    const auto boxes = surface.All("box");
    ASSERT_EQ(boxes.size(), 1U);
    const Stroke& box = boxes.front();
    // "Par": 300 by 200 about the label point; the box begins half a blank further left.
    const render::Point corner = box.Points.front();
    EXPECT_EQ(At({corner.X + 50 + 150, corner.Y - 20 + 100}), LabelAt(game, "Par"));
    EXPECT_DOUBLE_EQ(box.Width, 400);
    EXPECT_DOUBLE_EQ(box.Height, 160);
    EXPECT_EQ(box.Fore, game.Countries[2].Colour);
    EXPECT_FALSE(box.Filled);
    EXPECT_EQ(box.Pen, 2);
  }
  Recorder without;
  RenderMap(game, {}, "", without);
  EXPECT_TRUE(without.All("box").empty());
}

TEST(MapView, CaptionsTellTitleSeasonAndStage) {
  const std::vector<std::pair<std::string, std::string>> cases = {
      {"moves", "before moves"},
      {"retreats", "before retreats"},
      {"adjustments", "before adjustments"},
      {"finished", "end"}};
  for (const auto& [stage, caption] : cases) {
    GameState game = Board(stage, {});
    game.Title = "Friday";
    game.Season = "Autumn";
    game.Year = 1912;
    Recorder surface;
    RenderMap(game, {}, "", surface);
    auto texts = surface.All("text");
    texts.erase(texts.begin(), texts.end() - 3);
    std::vector<std::string> seen;
    for (const Stroke& text : texts) {
      seen.push_back(text.Text + (text.Bold ? " bold " : " ") + At(text.Points.front()));
    }
    EXPECT_THAT(
        seen, ElementsAre("Friday bold 100,100", "Autumn 1912 bold 100,300", caption + " 100,500"));
  }
}

struct StandoffCase {
  std::string Name;
  std::string Stage;
  std::string Contested;
  std::vector<std::string> Units;
  bool Marked;
};

TEST(MapView, StandoffMarkers) {
  const std::vector<StandoffCase> cases = {
      {"empty province", "retreats", "Bur", {}, true},
      {"other stage", "moves", "Bur", {}, false},
      {"occupied", "retreats", "Bur", {"FRA A(Bur)"}, false},
      {"occupied by a dislodged unit", "retreats", "Bur", {"FRA A(Bur) <Mun"}, false},
      {"a coast has none", "retreats", "Spa.n", {}, false},
      {"occupied on a coast", "retreats", "Spa", {"FRA F(Spa.n)"}, false}};
  for (const StandoffCase& test : cases) {
    GameState game = Board(test.Stage, test.Units);
    Live(game, test.Contested).Uncontested = false;
    Recorder surface;
    RenderMap(game, {MapMode::Grey}, "", surface);
    auto lines = surface.All("line");
    std::erase_if(lines, [](const Stroke& line) { return line.Pen != 1; });
    ASSERT_EQ(lines.size(), test.Marked ? 8U : 0U) << test.Name;
    if (!test.Marked) continue;
    const render::Point start = lines.front().Points.front();
    EXPECT_EQ(At({start.X + 90, start.Y + 90}), UnitAt(game, "Bur"));
  }
}

struct AttackCase {
  std::string Name;
  std::string Stage;
  std::vector<std::string> Units;
  std::string From, To;  ///< unit points of the line; empty for none
  int Power;
};

TEST(MapView, AttackLines) {
  const std::vector<AttackCase> cases = {
      {"from the empty province", "retreats", {"GER A(Bur) <Mun", "FRA A(Bur)"}, "Mun", "Bur", 2},
      {"not in another stage", "finished", {"GER A(Bur) <Mun", "FRA A(Bur)"}, "", "", 0},
      {"old province taken",
       "retreats",
       {"GER A(Bur) <Mun", "FRA A(Bur)", "AUS A(Mun)"},
       "",
       "",
       0},
      {"old province holds a dislodged unit",
       "retreats",
       {"GER A(Bur) <Mun", "FRA A(Bur)", "AUS A(Mun) <Tyr"},
       "",
       "",
       0},
      {"attacker gone", "retreats", {"GER A(Bur) <Mun"}, "", "", 0},
      {"the last attacker counts",
       "retreats",
       {"FRA A(Bur)", "GER A(Bur) <Mun", "ITA A(Bur)"},
       "Mun",
       "Bur",
       7},
      {"to where the attacker stands",
       "retreats",
       {"GER F(Spa.n) <Gas", "FRA A(Spa)"},
       "Gas",
       "Spa",
       2}};
  for (const AttackCase& test : cases) {
    for (const MapMode mode :
         {MapMode::Colour3D, MapMode::Colour, MapMode::Grey, MapMode::BlackWhite}) {
      const GameState game = Board(test.Stage, test.Units);
      Recorder surface;
      RenderMap(game, {mode}, "", surface);
      auto lines = surface.All("line");
      std::erase_if(lines, [](const Stroke& line) { return line.Pen != 5; });
      ASSERT_EQ(lines.size(), test.From.empty() ? 0U : 1U) << test.Name;
      if (test.From.empty()) continue;
      EXPECT_EQ(At(lines[0].Points[0]), UnitAt(game, test.From)) << test.Name;
      EXPECT_EQ(At(lines[0].Points[1]), UnitAt(game, test.To)) << test.Name;
      EXPECT_EQ(lines[0].Fore, render::InColour(mode) ? game.Countries[test.Power].Colour : 0U);
    }
  }
}

TEST(MapView, AnUnrecordedAttackHasNoLine) {
  GameState game = Board("retreats", {"GER A(Bur) <Mun", "FRA A(Bur)"});
  game.Units[1].DislodgedFrom.clear();
  Recorder surface;
  RenderMap(game, {MapMode::Colour}, "", surface);
  EXPECT_TRUE(surface.All("line").empty());
}

TEST(MapView, DislodgedUnitsAreSmallAndOnTop) {
  GameState game = Board("moves", {"GER A(Bur) <Mun", "FRA A(Bur)", "ENG A(Lon)", "AUS A(Vie)"});
  game.Units[4].Status = "lost";
  Recorder surface;
  RenderMap(game, {MapMode::Colour}, "", surface);
  std::vector<std::string> units;
  for (const Stroke& circle : surface.All("circle")) {
    if (circle.Width == 45) continue;
    units.push_back(At(circle.Points.front()) + " " + std::to_string(circle.Width).substr(0, 5));
    EXPECT_EQ(circle.Fill, game.Countries[units.size() == 1   ? 2
                                          : units.size() == 2 ? 1
                                                              : 3]
                               .Colour);
  }
  EXPECT_THAT(units, ElementsAre(UnitAt(game, "Bur") + " 115.0", UnitAt(game, "Lon") + " 115.0",
                                 LabelAt(game, "Bur") + " 86.25"));
}

TEST(MapView, FleetOnACoastStandsAtTheCoastsPoint) {
  const GameState game = Board("moves", {"RUS F(Stp.n)"});
  Recorder surface;
  RenderMap(game, {MapMode::Colour}, "", surface);
  const auto ships = surface.All("polygon");
  ASSERT_EQ(ships.size(), 1U);
  double left = 1e9;
  double right = 0;
  for (const render::Point& corner : ships[0].Points) {
    left = std::min(left, corner.X);
    right = std::max(right, corner.X);
  }
  const auto& coast = game.Map->Provinces[model::FindProvince(*game.Map, "Stp.n")];
  EXPECT_NEAR(left, coast.UnitX * 10000.0 - 160, 0.5);
  EXPECT_NEAR(right, coast.UnitX * 10000.0 + 160, 0.5);
}

TEST(MapView, UnknownLocationOrPowerIsAFault) {
  for (const MapMode mode : {MapMode::Colour3D, MapMode::BlackWhite}) {
    for (const bool power : {false, true}) {
      GameState game = Board("moves", {"FRA A(Bur)"});
      (power ? game.Units[1].Power : game.Units[1].Location) = "Xyz";
      Recorder surface;
      EXPECT_THROW(RenderMap(game, {mode}, "", surface), model::IndexOutOfRange);
    }
  }
}

TEST(MapView, CentreOwnersMarkOwnedCentresOnly) {
  GameState game = Board("moves", {});
  Live(game, "Par").Owner = "FRA";
  Live(game, "Bur").Owner = "FRA";
  Live(game, "Tun").Owner = "nobody";
  Recorder surface;
  RenderMap(game, {MapMode::Colour, false, false, true}, "", surface);
  const auto shields = surface.All("polygon");
  ASSERT_EQ(shields.size(), 1U);
  EXPECT_EQ(shields[0].Fill, game.Countries[2].Colour);
}

/// Centres and units of France, Turkey, Austria and England; of a coast and of a place that is no
/// centre the owner does not count.
GameState LegendBoard(std::string_view stage) {
  GameState game = Board(stage, {"FRA A(Bur)", "FRA A(Par)", "FRA F(Bre)", "TUR A(Con)",
                                 "TUR A(Smy)", "TUR F(Ank)", "AUS A(Vie)", "ENG A(Lon)"});
  for (const char* place : {"Par", "Mar", "Bre", "Bel", "Spa", "Gas", "Spa.n"}) {
    Live(game, place).Owner = "FRA";
  }
  for (const char* place : {"Con", "Smy"})
    Live(game, place).Owner = "TUR";
  Live(game, "Vie").Owner = "AUS";
  return game;
}

/// The legend's rows: the last seven texts, "5(+2) y".
std::vector<std::string> LegendRows(const Recorder& surface) {
  std::vector<std::string> rows;
  auto texts = surface.All("text");
  texts.erase(texts.begin(), texts.end() - 7);
  for (const Stroke& text : texts) {
    rows.push_back(text.Text + " " + std::to_string(std::lround(text.Points[0].Y)));
  }
  return rows;
}

TEST(MapView, LegendInColour) {
  const std::vector<std::string> plain = {"0 80",  "5 280",  "0 480", "0 680",
                                          "2 880", "1 1080", "0 1280"};
  const std::vector<std::string> adjusted = {"0(-1) 80",  "5(+2) 280", "0 480", "0 680",
                                             "2(-1) 880", "1 1080",    "0 1280"};
  for (const MapMode mode : {MapMode::Colour3D, MapMode::Colour}) {
    for (const std::string stage : {"moves", "retreats", "adjustments", "finished"}) {
      const GameState game = LegendBoard(stage);
      Recorder surface;
      RenderMap(game, {mode, true, false, false}, "", surface);
      EXPECT_EQ(LegendRows(surface), stage == "adjustments" ? adjusted : plain) << stage;
      const auto boxes = surface.All("box");
      const auto texts = surface.All("text");
      ASSERT_EQ(boxes.size(), 7U);
      for (std::size_t i = 0; i < 7; ++i) {
        const model::Country& country = game.Countries[static_cast<int>(i) + 1];
        EXPECT_TRUE(boxes[i].Filled && boxes[i].Pen == 1 && boxes[i].Fore == 0);
        EXPECT_EQ(boxes[i].Fill, country.Colour);
        EXPECT_EQ(texts[texts.size() - 7 + i].Fore, country.TextColour);
      }
      EXPECT_DOUBLE_EQ(texts.back().Points[0].X, stage == "adjustments" ? 9550 : 9750);
    }
  }
}

TEST(MapView, LegendWithoutColour) {
  for (const MapMode mode : {MapMode::Grey, MapMode::BlackWhite}) {
    for (const char* stage : {"moves", "adjustments"}) {
      Recorder surface;
      RenderMap(LegendBoard(stage), {mode, true, false, false}, "", surface);
      EXPECT_THAT(LegendRows(surface),
                  ElementsAre("ENG: 0 80", "FRA: 5 280", "GER: 0 480", "RUS: 0 680", "TUR: 2 880",
                              "AUS: 1 1080", "ITA: 0 1280"));
      const auto boxes = surface.All("box");
      ASSERT_EQ(boxes.size(), 1U);
      EXPECT_DOUBLE_EQ(boxes[0].Width, 550);
      EXPECT_TRUE(boxes[0].Filled && boxes[0].Pen == 1 && boxes[0].Fore == 0);
      EXPECT_EQ(boxes[0].Fill, model::Rgb(255, 255, 255));
      EXPECT_EQ(surface.Strokes.back().Fore, 0U);
    }
  }
}

}  // namespace
}  // namespace orb::tests
