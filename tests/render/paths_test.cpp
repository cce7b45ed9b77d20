#include "render/paths.h"

#include "render/recorder.h"

#include <gtest/gtest.h>

#include <vector>

namespace orb::tests {
namespace {

TEST(Paths, ReachTheirEnds) {
  const render::Path ring = render::RingPath({500, 400}, 100);
  EXPECT_EQ(At(ring.front()) + " " + At(ring.back()), "600,400 600,400");
  const render::Path wave = render::WavePath({500, 400});
  EXPECT_EQ(At(wave.front()) + " " + At(wave.back()), "320,427 680,427");
  const render::Path curve = render::CurvePath({0, 0}, {400, 0}, {400, 400});
  EXPECT_EQ(At(curve.front()) + " " + At(curve.back()), "0,0 400,400");
  EXPECT_GT(render::SpotAt(curve, 0).Along.X, 0.9) << "towards the bend";
  EXPECT_GT(render::SpotAt(curve, render::LengthOf(curve)).Along.Y, 0.9) << "from the bend";
}

TEST(Paths, TouchARectangleWithinReach) {
  struct Case {
    render::Point From, To;
    bool Touches;
  };
  const render::Rectangle box = {{100, 100}, {200, 200}};
  for (const auto& [from, to, touches] : std::vector<Case>{{{50, 50}, {250, 250}, true},
                                                           {{50, 95}, {250, 95}, true},
                                                           {{50, 85}, {250, 85}, false},
                                                           {{50, 215}, {250, 215}, false},
                                                           {{205, 250}, {205, 50}, true},
                                                           {{215, 250}, {215, 50}, false},
                                                           {{150, 40}, {40, 150}, true},
                                                           {{130, 40}, {40, 130}, false},
                                                           {{0, 150}, {80, 150}, false}}) {
    EXPECT_EQ(render::Touches({from, to}, box, 10), touches) << At(from) << " " << At(to);
  }
}

}  // namespace
}  // namespace orb::tests
