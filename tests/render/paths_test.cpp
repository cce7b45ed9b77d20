#include "render/paths.h"

#include "render/recorder.h"

#include <gtest/gtest.h>

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

}  // namespace
}  // namespace orb::tests
