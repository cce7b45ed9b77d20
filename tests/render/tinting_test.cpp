#include "render/tinting.h"

#include "model/lookups.h"
#include "render/hit_map.h"
#include "support/boards.h"
#include "support/drawn_cases.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace orb::tests {
namespace {

using render::Tint;

std::string TintName(Tint tint) {
  if (tint == render::NoTint) return "none";
  return tint == render::Paper ? "paper" : std::string(model::PowerName(tint));
}

TEST(Tinting, LandsGoWithTheirOwnersOrTheirNeighbours) {
  for (const auto& [owners, tints] : LoadDrawnRows("render/marks.txt", "tints")) {
    SCOPED_TRACE(owners);
    model::GameState game = EmptyBoard("Spring", "moves");
    for (const std::string& owned : Parts(owners))
      Own(game, owned);
    const render::Tinting tinting = render::TintByOwner(game, "dir", settings::MapMode::Colour);
    const std::vector<std::string> expected = Words(tints);
    for (std::size_t i = 0; i < expected.size(); i += 2) {
      const int row = model::FindProvince(*game.Map, expected[i]);
      EXPECT_EQ(TintName(tinting.Shown.at(static_cast<std::size_t>(row - 1))), expected[i + 1])
          << expected[i];
    }
  }
}

/// A hit-test picture of one row of pixels, as its file.
std::string HitFile(const std::vector<int>& rows) {
  std::string file(54 + rows.size(), '\0');
  file.replace(0, 2, "BM");
  file[10] = 54;
  file[18] = static_cast<char>(rows.size());
  file[22] = 1;
  file[28] = 8;
  for (std::size_t i = 0; i < rows.size(); ++i)
    file[54 + i] = static_cast<char>(rows[i]);
  return file;
}

TEST(Tinting, OnlyTheGroundOfTheLandsThatChangeIsRecoloured) {
  constexpr std::uint32_t red = 0xFFF0C0C0;
  constexpr std::uint32_t blue = 0xFFC0C0F0;
  constexpr std::uint32_t sea = 0xFF90B0D0;
  constexpr std::uint32_t line = 0xFF302020;
  const render::HitMap hits(HitFile({1, 1, 2, 2, 3, 3, 0, 0}), "hit", 3);
  // A land of England, one of France and a sea, each with another tint in the background.
  render::Tinting tinting{"", {1, 2, render::NoTint}, {2, render::Paper, render::NoTint}, false};
  const std::vector<std::uint32_t> background = {red, line, blue, blue, sea, sea, sea, sea};
  std::vector<std::uint32_t> pixels = background;
  const render::PixelPicture picture{pixels, 8, 1};
  const render::TintColourTable colours = {0xFFFFF0D0, red, blue};
  render::ApplyTints(picture, hits, tinting, colours);
  EXPECT_EQ(pixels[0], blue);
  EXPECT_LT(pixels[1] & 0xFF, 0x28U) << "a line is as dark as before";
  EXPECT_EQ(pixels[2], colours[0]);
  EXPECT_EQ(std::vector<std::uint32_t>(pixels.begin() + 4, pixels.end()),
            std::vector<std::uint32_t>(4, sea));

  // The same on a picture of another size, and in strokes instead of tints.
  std::vector<std::uint32_t> large(std::size_t{16} * 16, 0xFFFFFFFFU);
  tinting.AsPatterns = true;
  render::ApplyTints({large, 16, 16}, hits, tinting, colours);
  int inked = 0;
  for (std::size_t i = 0; i < large.size(); ++i) {
    const bool changed = large[i] != 0xFFFFFFFFU;
    EXPECT_TRUE(!changed || i % 16 < 4) << "only France has strokes";
    inked += changed ? 1 : 0;
  }
  EXPECT_GT(inked, 5);
}

}  // namespace
}  // namespace orb::tests
