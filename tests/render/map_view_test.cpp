#include "render/map_view.h"

#include "model/errors.h"
#include "model/lookups.h"
#include "render/labels.h"
#include "render/recorder.h"
#include "render/symbols.h"
#include "settings/map_options.h"
#include "support/boards.h"
#include "support/drawn_cases.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <iterator>
#include <string>
#include <vector>

namespace orb::tests {
namespace {

using model::GameState;
using settings::MapMode;
using settings::MapOptions;
using ::testing::ElementsAre;

/// The map of a situation as it is drawn.
struct Drawn : Recorder {
  explicit Drawn(const GameState& game, const MapOptions& options = {}) {
    RenderMap(game, options, "dir", *this);
  }
};

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
  const std::vector<std::string> files = {"dir/map.bmp", "dir/map.bmp", "dir/mapgrey.bmp",
                                          "dir/mapbw.bmp"};
  for (const MapMode mode : AllModes) {
    const Stroke first = Drawn(Board("Spring", "moves", {}), {mode}).Strokes.front();
    EXPECT_EQ(first.Kind + first.Text, "picture" + files.at(static_cast<std::size_t>(mode)));
  }
  Recorder surface;
  surface.PictureMissing = true;
  EXPECT_THROW(RenderMap(Board("Spring", "moves", {}), {}, "dir", surface), model::FileError);
  EXPECT_TRUE(surface.Strokes.empty());
}

TEST(MapView, StepsPaintOverEarlierOnes) {
  GameState game = Board("Spring", "retreats",
                         {"FRA A(Mun)", "GER A(Mun) <Bur", "ENG A(Lon)", "ENG A(Wal) <Cly"});
  Live(game, "Par").Uncontested = false;
  Live(game, "Bre").Owner = "FRA";
  const Drawn surface(game, {MapMode::Colour, true, false, true});
  const std::string steps = Order(surface);
  const std::string end =
      "text line attack box dot box unit small text polygon box text box text box text box text "
      "box text "
      "box text box text";
  ASSERT_GT(steps.size(), end.size());
  EXPECT_EQ(steps.substr(0, 12), "picture text");
  EXPECT_EQ(steps.substr(steps.size() - end.size()), end);
}

TEST(MapView, EveryPlaceHasItsLabelAndEveryCentreADotBelow) {
  const Drawn surface(Board("Spring", "moves", {}));
  const auto texts = surface.All("text");
  const auto dots = surface.All("circle");
  ASSERT_EQ(texts.size(), 81U + 3);
  ASSERT_EQ(dots.size(), 34U);
  auto text = texts.begin();
  auto dot = dots.begin();
  for (const model::Province& place : RealMap()->Provinces) {
    EXPECT_EQ(text->Text, place.Name.substr(place.Name.size() == 3 ? 0 : 4));
    const double half = 50.0 * static_cast<double>(text->Text.size());
    const render::Point corner = text->Points.front();
    EXPECT_EQ(At({corner.X + half, corner.Y + 100}), At(LabelAt(place.Name))) << place.Name;
    EXPECT_TRUE(text->Fore == 0 && !text->Bold);
    ++text;
    if (place.IsSupplyCentre == 0) continue;
    EXPECT_EQ(At({dot->Points[0].X, dot->Points[0].Y - 120}), At(LabelAt(place.Name)));
    EXPECT_TRUE(dot->Width == 45 && dot->Filled && dot->Fill + dot->Fore == 0 && dot->Pen == 1);
    ++dot;
  }
}

TEST(MapView, OnlyOwnedCentresHaveABoxOrAShield) {
  GameState game = Board("Spring", "moves", {});
  Own(game, "FRA Par Bur Spa.n");
  Own(game, "fra Tun");
  for (const MapMode mode : AllModes) {
    const Drawn surface(game, {mode, false, true, false});
    const auto boxes = surface.All("box");
    ASSERT_EQ(boxes.size(), 2U) << "the box and its edge";
    const bool inColour = settings::InColour(mode);
    const Stroke& box = boxes[inColour ? 1 : 0];
    // "Par": 300 by 200 about the label point; the box begins half a blank further left.
    const render::Point corner = box.Points.front();
    EXPECT_EQ(At({corner.X + 50 + 150, corner.Y - 20 + 100}), At(LabelAt("Par")));
    EXPECT_EQ(At({box.Width, box.Height}), "400,160");
    EXPECT_EQ(box.Fore, game.Countries[2].Colour);
    EXPECT_TRUE(!box.Filled && box.Pen == 2);
    const Stroke& edge = boxes[inColour ? 0 : 1];
    EXPECT_EQ(edge.Fore, render::Black);
    EXPECT_GT(edge.Pen, box.Pen) << "seen beside the box, or all over it";
    auto last = surface.Strokes.rbegin();
    while (last->Kind != "text" || last->Text != "Par")
      ++last;
    EXPECT_TRUE((last + 1)->Kind == "circle" && last->Halo > 1) << "over the box and the dot";
  }
  const auto shields = Drawn(game, {MapMode::Colour, false, false, true}).All("polygon");
  ASSERT_EQ(shields.size(), 1U);
  EXPECT_EQ(shields[0].Fill, game.Countries[2].Colour);
  EXPECT_TRUE(Drawn(game).All("box").empty() && Drawn(game).All("polygon").empty());
}

TEST(MapView, CaptionsTellTitleSeasonAndStage) {
  for (const std::string stage : {"moves", "retreats", "adjustments", "finished"}) {
    GameState game = Board("Autumn", stage, {});
    game.Title = "Friday";
    game.Year = 1912;
    const auto texts = Drawn(game).All("text");
    std::vector<std::string> seen;
    for (auto text = texts.end() - 3; text != texts.end(); ++text)
      seen.push_back(text->Text + (text->Bold ? " bold " : " ") + At(text->Points.front()));
    const std::string caption = stage == "finished" ? "end" : "before " + stage;
    EXPECT_THAT(
        seen, ElementsAre("Friday bold 100,100", "Autumn 1912 bold 100,300", caption + " 100,500"));
  }
}

TEST(MapView, MarksStandoffsOfPlacesLeftEmpty) {
  for (const auto& [row, mark] : LoadDrawnRows("render/marks.txt", "standoffs")) {
    SCOPED_TRACE(row);
    const std::vector<std::string> parts = Parts(row);
    const bool marked = mark == "marked";
    GameState game = Board("Spring", parts[0], {parts.begin() + 2, parts.end()});
    Live(game, parts[1]).Uncontested = false;
    const auto lines = Drawn(game, {MapMode::Grey}).All("line", 1);
    ASSERT_EQ(lines.size(), marked ? 8U : 0U);
    if (!marked) continue;
    const render::Point start = lines.front().Points.front();
    EXPECT_EQ(At({start.X + 90, start.Y + 90}), At(UnitAt("Bur")));
  }
}

TEST(MapView, DrawsTheAttacksThatDislodged) {
  for (const auto& [row, drawn] : LoadDrawnRows("render/marks.txt", "attacks")) {
    SCOPED_TRACE(row);
    const std::vector<std::string> parts = Parts(row);
    const std::vector<std::string> line = Words(drawn);
    for (const MapMode mode : AllModes) {
      const GameState game = Board("Spring", parts[0], {parts.begin() + 1, parts.end()});
      const auto lines = Drawn(game, {mode}).All("line", 5);
      ASSERT_EQ(lines.size(), drawn == "none" ? 0U : 1U);
      if (lines.empty()) continue;
      EXPECT_EQ(At(lines[0].Points[0]) + At(lines[0].Points[1]),
                At(UnitAt(line[0])) + At(UnitAt(line[1])));
      const model::Country& attacker = game.Countries[model::FindCountry(line[2])];
      EXPECT_EQ(lines[0].Fore, settings::InColour(mode) ? attacker.Colour : 0U);
    }
  }
}

TEST(MapView, DislodgedUnitsAreSmallAndOnTop) {
  GameState game =
      Board("Spring", "retreats", {"GER A(Bur) <Mun", "FRA A(Bur)", "ENG A(Lon)", "AUS A(Vie)"});
  game.Units[1].DislodgedFrom.clear();
  game.Units[4].Status = "lost";
  const Drawn surface(game, {MapMode::Colour});
  EXPECT_TRUE(surface.All("line").empty()) << "the attack is not recorded";
  std::vector<std::string> units;
  for (const Stroke& circle : surface.All("circle")) {
    if (circle.Width == 45) continue;
    const auto power = std::find_if(game.Countries.begin(), game.Countries.end(),
                                    [&](const auto& c) { return c.Colour == circle.Fill; });
    units.push_back(power->Abbreviation + " " + At(circle.Points.front()) + " " +
                    std::to_string(circle.Width).substr(0, 5));
  }
  EXPECT_THAT(units, ElementsAre("FRA " + At(UnitAt("Bur")) + " 115.0",
                                 "ENG " + At(UnitAt("Lon")) + " 115.0",
                                 "GER " + At(LabelAt("Bur")) + " 86.25"));
}

TEST(MapView, ALabelUnderADislodgedUnitIsWrittenAgainClearOfEveryUnit) {
  for (const std::string place : {"Bur", "Bel", "NTH", "Nap", "Spa.n", "Tun", "BAR"}) {
    SCOPED_TRACE(place);
    const GameState game = Board("Spring", "retreats",
                                 {"GER F(" + place + ") <Mun", "FRA A(" + place.substr(0, 3) + ")",
                                  "ITA A(Ruh)", "ENG F(ECH)", "AUS A(Rom)"});
    auto texts = Drawn(game, {MapMode::Colour}).All("text");
    std::erase_if(texts, [&](const Stroke& text) {
      return text.Text != place.substr(place.size() == 3 ? 0 : 4);
    });
    const Stroke& text = texts.back();
    ASSERT_NE(At(text.Points[0]), At(texts.front().Points[0])) << "not written again";
    EXPECT_EQ(text.Fore, render::Black);
    EXPECT_GT(text.Halo, 1);
    const render::Point corner = text.Points[0];
    const double width = 100.0 * static_cast<double>(text.Text.size());
    const render::Rectangle ink = {{corner.X, corner.Y + 40}, {corner.X + width, corner.Y + 170}};
    EXPECT_GT(render::CommonArea(ink, {{0, 0}, {10000, 8000}}), 0.99 * width * 130);
    for (const render::ShownUnit& unit : render::UnitsShown(game)) {
      const render::Point at = render::OnSurface(Recorder(), unit.At);
      EXPECT_EQ(render::CommonArea(ink, render::UnitBox(unit.UnitType, at, unit.Scale)), 0);
    }
  }
}

/// Centres and units of France, Turkey, Austria and England; of a coast and of a place that is no
/// centre the owner does not count.
GameState LegendBoard(std::string_view stage) {
  GameState game = EmptyBoard("Spring", stage);
  for (const char* unit : {"FRA A(Bur)", "FRA A(Par)", "FRA F(Bre)", "TUR A(Con)", "TUR A(Smy)",
                           "TUR F(Ank)", "AUS A(Vie)", "ENG A(Lon)"}) {
    AddDrawnUnit(game, unit);
  }
  for (const char* owned : {"FRA Par Mar Bre Bel Spa Gas Spa.n", "TUR Con Smy", "AUS Vie"})
    Own(game, owned);
  return game;
}

/// The legend's rows: the last seven texts, "5(+2) y".
std::vector<std::string> LegendRows(const Recorder& surface) {
  std::vector<std::string> rows;
  auto texts = surface.All("text");
  texts.erase(texts.begin(), texts.end() - 7);
  std::transform(texts.begin(), texts.end(), std::back_inserter(rows), [](const Stroke& text) {
    return text.Text + " " + std::to_string(std::lround(text.Points[0].Y));
  });
  return rows;
}

TEST(MapView, TheLegendCountsCentresAndWhatIsDue) {
  using Rows = std::vector<std::string>;
  const Rows plain = {"0 80", "5 280", "0 480", "0 680", "2 880", "1 1080", "0 1280"};
  const Rows due = {"0(-1) 80", "5(+2) 280", "0 480", "0 680", "2(-1) 880", "1 1080", "0 1280"};
  const Rows named = {"ENG: 0 80",  "FRA: 5 280",  "GER: 0 480", "RUS: 0 680",
                      "TUR: 2 880", "AUS: 1 1080", "ITA: 0 1280"};
  for (const std::string stage : {"moves", "adjustments"}) {
    const GameState game = LegendBoard(stage);
    const Drawn colour(game, {MapMode::Colour, true, false, false});
    EXPECT_EQ(LegendRows(colour), stage == "adjustments" ? due : plain) << stage;
    const auto boxes = colour.All("box");
    const auto texts = colour.All("text");
    ASSERT_EQ(boxes.size(), 7U);
    for (std::size_t i = 0; i < 7; ++i) {
      const model::Country& country = game.Countries[static_cast<int>(i) + 1];
      EXPECT_TRUE(boxes[i].Filled && boxes[i].Pen == 1 && boxes[i].Fore == 0);
      EXPECT_EQ(boxes[i].Fill, country.Colour);
      EXPECT_EQ(texts[texts.size() - 7 + i].Fore, country.TextColour);
    }
    EXPECT_DOUBLE_EQ(texts.back().Points[0].X, stage == "adjustments" ? 9550 : 9750);
    const Drawn grey(game, {MapMode::Grey, true, false, false});
    EXPECT_EQ(LegendRows(grey), named);
    const auto frame = grey.All("box");
    ASSERT_EQ(frame.size(), 1U);
    EXPECT_EQ(frame[0].Width, 550);
    EXPECT_TRUE(frame[0].Filled && frame[0].Pen == 1 && frame[0].Fore == 0);
    EXPECT_EQ(frame[0].Fill, model::Rgb(255, 255, 255));
    EXPECT_EQ(grey.Strokes.back().Fore, 0U);
  }
}

}  // namespace
}  // namespace orb::tests
