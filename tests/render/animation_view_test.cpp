#include "render/animation_view.h"

#include "model/lookups.h"
#include "render/drawing.h"
#include "render/paths.h"
#include "render/recorder.h"
#include "settings/map_options.h"
#include "support/boards.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace orb::tests {
namespace {

using history::Replay;
using ::testing::Contains;
using ::testing::ElementsAre;

/// Where the armies' discs are drawn, and their radius.
std::vector<std::string> Discs(const Replay& replay, double seconds) {
  Recorder surface;
  DrawMoving(replay, {settings::MapMode::Colour}, seconds / render::Seconds(replay), surface);
  std::vector<std::string> discs;
  for (const Stroke& circle : surface.All("circle"))
    discs.push_back(At(circle.Points[0]) + " " + std::to_string(std::lround(circle.Width)));
  return discs;
}

std::string Middle(render::Point a, render::Point b) {
  return At({(a.X + b.X) / 2, (a.Y + b.Y) / 2});
}

/// Adds the way of a unit, drawn as "FRA A(Par)".
history::Journey& Add(Replay& replay, std::string_view unit, std::string aim = {}) {
  model::Unit read;
  EXPECT_TRUE(ReadUnit(unit, read));
  history::Journey& journey = replay.Journeys.emplace_back();
  journey.Power = read.Power;
  journey.UnitType = read.UnitType;
  journey.From = read.Location;
  journey.Aim = std::move(aim);
  return journey;
}

TEST(AnimationView, UnitsGoTheirWaysOneStageAfterTheOther) {
  Replay replay = {EmptyBoard("Autumn", "moves"), {}, EmptyBoard("Autumn", "finished")};
  Add(replay, "FRA A(Par)", "Bur");
  Add(replay, "ITA A(Pie)", "Mar").Bounces = true;
  history::Journey& loser = Add(replay, "GER A(Bur)");
  loser.Dislodged = loser.Vanishes = true;
  Add(replay, "AUS A(Vie)").Appears = true;
  const std::string par = At(UnitAt("Par")) + " 115";
  const std::string pie = At(UnitAt("Pie")) + " 115";
  const std::string bur = At(UnitAt("Bur")) + " 115";
  EXPECT_THAT(Discs(replay, 0.4), ElementsAre(par, pie, bur));
  // The moves take from 0.5 to 2.1 seconds, retreats from 2.4 to 3.6, builds from 3.9 to 4.8.
  EXPECT_THAT(Discs(replay, 1.3), ElementsAre(bur, Middle(UnitAt("Par"), UnitAt("Bur")) + " 115",
                                              Middle(UnitAt("Pie"), UnitAt("Mar")) + " 115"));
  const render::Path way = {UnitAt("Pie"), UnitAt("Mar")};
  const std::string quarter = At(render::SpotAt(way, render::LengthOf(way) / 4).At);
  for (const double seconds : {0.9, 1.7})
    EXPECT_THAT(Discs(replay, seconds), Contains(quarter + " 115"));
  const std::string aside = At(LabelAt("Bur"));
  EXPECT_THAT(Discs(replay, 2.2), ElementsAre(bur, pie, aside + " 86"));
  EXPECT_THAT(Discs(replay, 3.0), ElementsAre(bur, pie, aside + " 43"));
  EXPECT_THAT(Discs(replay, 3.7), ElementsAre(bur, pie));
  EXPECT_THAT(Discs(replay, 4.352), ElementsAre(bur, pie, At(UnitAt("Vie")) + " 58"));
  EXPECT_THAT(Discs(replay, 5.5), ElementsAre(bur, pie, At(UnitAt("Vie")) + " 115"));
  // With less motion every moment in which something moves shows what was before it.
  const double whole = render::Seconds(replay);
  for (const auto& [time, rest] : {std::pair{0.4, 0.4},
                                   {0.6, 0.5},
                                   {2.0, 0.5},
                                   {2.2, 2.2},
                                   {3.5, 2.4},
                                   {3.7, 3.7},
                                   {4.7, 3.9},
                                   {5.0, 5.0}})
    EXPECT_NEAR(render::AtRest(replay, time / whole) * whole, rest, 1e-9) << time;
}

TEST(AnimationView, AConvoyedArmyGoesOverItsFleets) {
  Replay replay = {EmptyBoard("Spring", "moves"), {}, EmptyBoard("Spring", "finished")};
  Add(replay, "ENG A(Yor)", "Bre").Fleets = {"NTH", "ECH"};
  render::Path way;
  for (const char* stop : {"Yor", "NTH", "ECH", "Bre"})
    way.push_back(render::UnitPoint(model::PlaceOf(*RealMap(), stop)));
  // It starts and ends slowly: in the first quarter of the time it goes 5/32 of the way.
  for (const auto& [time, part] : {std::pair{0.25, 5.0 / 32}, {0.5, 0.5}, {0.75, 27.0 / 32}}) {
    const render::Point at = render::SpotAt(way, part * render::LengthOf(way)).At;
    EXPECT_THAT(Discs(replay, 0.5 + 1.6 * time),
                ElementsAre(At(render::OnSurface(Recorder(), at)) + " 115"));
  }
}

}  // namespace
}  // namespace orb::tests
