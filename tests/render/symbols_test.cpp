#include "render/symbols.h"

#include "render/paths.h"
#include "render/recorder.h"
#include "settings/map_options.h"

#include <gtest/gtest.h>

#include <cmath>
#include <numbers>
#include <set>
#include <string>

namespace orb::tests {
namespace {

using settings::MapMode;

constexpr render::Point Middle = {0.5, 0.5};  // 5000,4000 on the recorder

/// Everything drawn for a unit, as one text.
std::string Looks(MapMode mode, int power, bool army) {
  Recorder surface;
  const model::CountryTable countries = model::FixedCountries();
  (army ? render::DrawArmy : render::DrawFleet)(surface, {countries, mode}, Middle, power, 1);
  std::string looks;
  for (const Stroke& stroke : surface.Strokes) {
    looks += stroke.Kind + stroke.Text + std::to_string(stroke.Fore) + "/" +
             std::to_string(stroke.Filled ? stroke.Fill : 1) + " ";
  }
  return looks;
}

TEST(Symbols, PowersAndUnitTypesDifferInEveryMode) {
  for (const MapMode mode : AllModes) {
    std::set<std::string> seen;
    for (int power = 1; power <= model::CountryCount; ++power)
      seen.insert({Looks(mode, power, true), Looks(mode, power, false)});
    EXPECT_EQ(seen.size(), 14U);
  }
}

TEST(Symbols, KeepToTheModesColoursAndLeaveThePensAsTheMapWantsThem) {
  const model::CountryTable countries = model::FixedCountries();
  for (const MapMode mode : AllModes) {
    for (int power = 1; power <= model::CountryCount; ++power) {
      Recorder surface;
      render::DrawArmy(surface, {countries, mode}, Middle, power, 1);
      render::DrawFleet(surface, {countries, mode}, Middle, power, 0.75);
      for (const Stroke& stroke : surface.Strokes) {
        for (const render::Point& point : stroke.Points)
          EXPECT_LT(render::Distance(point, {5000, 4000}), 220);
        for (const model::Colour colour : {stroke.Fore, stroke.Fill}) {
          const unsigned red = colour & 0xFF;
          EXPECT_TRUE(settings::InColour(mode) || colour == model::Rgb(red, red, red));
          EXPECT_TRUE(mode != MapMode::BlackWhite || red == 0 || red == 255);
        }
      }
      // The band about a ship's funnel.
      for (const Stroke& line : surface.All("line", 2 * 0.75))
        EXPECT_EQ(At(line.Points[0]) + " " + At(line.Points[1]), "4978,3934 5003,3934");
      render::DrawMoveLine(surface, Middle, {0, 0}, countries[power].Colour);
      EXPECT_TRUE(surface.ForeColour == 0 && surface.FillColour == 0 && surface.DrawWidth == 1);
      EXPECT_TRUE(surface.FillStyle == render::Fill::Solid && !surface.FontBold);
      EXPECT_EQ(surface.FontSize, 8);
    }
  }
}

TEST(Symbols, ArmyIsADiscWithShadedQuartersIn3D) {
  const model::CountryTable countries = model::FixedCountries();
  for (const double scale : {1.0, 0.75}) {
    Recorder surface;
    render::DrawArmy(surface, {countries, MapMode::Colour3D}, Middle, 5, scale);
    const auto discs = surface.All("circle");
    ASSERT_EQ(discs.size(), 1U);
    EXPECT_DOUBLE_EQ(discs[0].Width, 115 * scale);
    EXPECT_EQ(discs[0].Fill, countries[5].Colour);
    const auto arcs = surface.All("arc");
    ASSERT_EQ(arcs.size(), 4U);
    std::set<model::Colour> shades;
    for (std::size_t i = 0; i < 4; ++i) {
      EXPECT_NEAR(arcs[i].Start, static_cast<double>(i) * std::numbers::pi / 2, 1e-9);
      EXPECT_NEAR(arcs[i].End - arcs[i].Start, std::numbers::pi / 2, 1e-9);
      EXPECT_LT(arcs[i].Width + arcs[i].Pen * 15 / 2, 115 * scale);
      shades.insert(arcs[i].Fore);
    }
    EXPECT_EQ(shades, (std::set<model::Colour>{model::Rgb(64, 64, 64), model::Rgb(128, 128, 128),
                                               model::Rgb(255, 255, 255)}));
  }
  EXPECT_EQ(Looks(MapMode::Colour, 5, true).find("arc"), std::string::npos);
}

TEST(Symbols, EachStandoffLineReachesNinetyTwips) {
  Recorder surface;
  render::DrawStandoffMarker(surface, Middle);
  const auto lines = surface.All("line");
  ASSERT_EQ(lines.size(), 8U);
  EXPECT_EQ(At(lines[0].Points[0]), "4910,3910");
  EXPECT_EQ(At(lines[0].Points[1]), "5090,4090");
  for (const Stroke& line : lines) {
    EXPECT_TRUE(line.Pen == 1 && line.Fore == 0);
    for (const render::Point& end : line.Points) {
      EXPECT_DOUBLE_EQ(std::max(std::abs(end.X - 5000), std::abs(end.Y - 4000)), 90);
    }
  }
}

}  // namespace
}  // namespace orb::tests
