#include "render/ownership.h"

#include "render/recorder.h"
#include "support/boards.h"

#include <gtest/gtest.h>

#include <cmath>
#include <utility>

namespace orb::tests {
namespace {

/// What stands on the surface line by line, underlined texts between "_".
std::string Page(const Recorder& surface) {
  std::string page;
  long row = 0;
  for (const Stroke& text : surface.All("text")) {
    const long next = std::lround(text.Points.front().Y / surface.TextHeight(""));
    page.append(static_cast<std::size_t>(next - std::exchange(row, next)), '\n');
    page.append(text.Underlined ? "_" + text.Text + "_" : text.Text);
  }
  return page;
}

TEST(Ownership, ListsTheCentresOfEachGroup) {
  model::GameState game = EmptyBoard("Spring", "moves");
  for (const char* owned : {"ITA Ven Lon", "FRA Par Bur Spa.n", "eng Edi Lvp"})
    Own(game, owned);
  Recorder surface;
  surface.CurrentX = surface.CurrentY = 700;
  // A line of the surface holds 25 names exactly.
  EXPECT_EQ(ShowCentreOwnership(game, surface), 9 * 200);
  EXPECT_EQ(surface.Strokes.front().Kind, "white");
  EXPECT_EQ(Page(surface),
            "OWNERSHIP OF SUPPLY CENTRES\n"
            "\n"
            "_France_ (1)\n"
            "Par \n"
            "_Italy_ (2)\n"
            "Lon Ven \n"
            "_Neutral_ (29)\n"
            "Bre Mar Ber Kie Mun Mos Sev Stp War Ank Con Smy Bud Tri Vie Nap Rom Bel Bul Den Gre "
            "Hol Nwy Por Rum \n"
            "Ser Spa Swe Tun ");
  for (model::ProvinceState& province : game.Provinces)
    province.Owner = "nobody";
  EXPECT_EQ(ShowCentreOwnership(game, surface), 200);
}

}  // namespace
}  // namespace orb::tests
