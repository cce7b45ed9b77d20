#include "render/hit_map.h"

#include "model/errors.h"
#include "support/boards.h"
#include "support/directories.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace orb::tests {
namespace {

using render::HitMap;

void Put(std::string& bytes, std::size_t at, std::uint32_t number, int size) {
  for (int i = 0; i < size; ++i) {
    bytes[at + static_cast<std::size_t>(i)] = static_cast<char>(number >> (8 * i) & 0xFF);
  }
}

/// A bitmap of three pixels a row, given from its first row in the file.
std::string Bitmap(const std::vector<std::string>& rows, bool fromTop) {
  std::string bytes(54, '\0');
  bytes.replace(0, 2, "BM");
  Put(bytes, 10, 54, 4);
  Put(bytes, 14, 40, 4);
  Put(bytes, 18, 3, 4);
  const auto height = static_cast<std::int32_t>(rows.size());
  Put(bytes, 22, static_cast<std::uint32_t>(fromTop ? -height : height), 4);
  Put(bytes, 26, 1, 2);
  Put(bytes, 28, 8, 2);
  for (const std::string& row : rows)
    bytes.append(row).push_back('\0');
  return bytes;
}

TEST(HitMap, PixelsAreRowsOfTheProvinceTable) {
  const auto map = RealMap();
  const std::string upper = {1, 2, 0};
  const std::string lower = {3, 4, 5};
  for (const bool fromTop : {true, false}) {
    const HitMap hits(
        Bitmap(fromTop ? std::vector{upper, lower} : std::vector{lower, upper}, fromTop), "x", 81);
    const std::vector<std::pair<render::Point, int>> cases = {
        {{0, 0}, 1}, {{0.5, 0.1}, 2}, {{0.9, 0.49}, 0}, {{0.2, 0.51}, 3},
        {{1, 1}, 5}, {{0.5, 0.9}, 4}, {{-0.01, 0}, 0},  {{0, 1.01}, 0}};
    for (const auto& [point, row] : cases) {
      EXPECT_EQ(hits.LocationAt(*map, point, "A"), row) << point.X << " " << point.Y;
    }
  }
}

TEST(HitMap, BadFilesAreRefused) {
  const std::string good = Bitmap({{1, 2, 3}, {1, 2, 3}}, false);
  EXPECT_NO_THROW(HitMap(good, "x", 81));
  const auto changed = [&](std::size_t at, std::uint32_t number, int size) {
    std::string bytes = good;
    Put(bytes, at, number, size);
    return bytes;
  };
  for (const std::string& bytes :
       {std::string(), changed(0, 0x4142, 2), changed(28, 24, 2), changed(30, 1, 4),
        changed(18, 0, 4), changed(18, 0xFFFFFFFD, 4), changed(18, 0x7FFFFFFF, 4),
        changed(22, 0, 4), changed(22, 0x80000000, 4), changed(22, 3, 4), changed(10, 20, 4),
        changed(10, 0xFFFFFFFF, 4), changed(54, 82, 1), good.substr(0, good.size() - 1)}) {
    EXPECT_THROW(HitMap(bytes, "x", 81), model::FileError) << testing::PrintToString(bytes);
  }
}

TEST(HitMap, PointsHitTheirPlaceAndAFleetGetsTheNearestCoast) {
  const auto map = RealMap();
  const TemporaryDirectory empty;
  const auto name = [&](const HitMap& hits, render::Point point, std::string_view type) {
    return map->Provinces[hits.LocationAt(*map, point, type)].Name;
  };
  const render::Point north = {0.16F, 0.71F};
  const render::Point south = {0.19F, 0.83F};
  for (const auto& directory : {DataDirectory(), empty.Path()}) {
    const HitMap hits = render::LoadHitMap(directory, *map, 1.2);
    EXPECT_EQ(name(hits, north, "F"), "Spa.n");
    EXPECT_EQ(name(hits, south, "F"), "Spa.s");
    EXPECT_EQ(name(hits, south, "A"), "Spa");
    EXPECT_EQ(name(hits, south, ""), "Spa");
    for (const model::Province& place : map->Provinces) {
      // A coast's point may lie off the shore: only the nearest-point map must find it.
      const bool coast = place.Name.size() > 3;
      if (coast && directory != empty.Path()) continue;
      EXPECT_EQ(name(hits, {place.UnitX, place.UnitY}, coast ? "F" : "A"), place.Name);
    }
  }
}

TEST(HitMap, AShipBesideItsCoastIsHitAsThatCoast) {
  const model::GameState game = Board("Spring", "moves", {"FRA F(Spa.s)", "ENG F(Bul.e) <BLA"});
  const HitMap hits = render::LoadHitMap(DataDirectory(), *game.Map, 1.2);
  const auto hit = [&](std::string_view coast, float aside, std::string_view type) {
    const model::Province& place = game.Map->Provinces[FindProvince(*game.Map, coast)];
    const int row = hits.LocationAt(game, {place.UnitX + aside, place.UnitY}, type);
    return game.Map->Provinces[row].Name;
  };
  EXPECT_EQ(hit("Spa.s", 0.01F, "F"), "Spa.s");
  EXPECT_EQ(hit("Spa.s", 0.01F, "A"), "Spa");
  EXPECT_EQ(hit("Spa.s", 0.012F, "F"), "WES");
  EXPECT_EQ(hit("Spa.n", 0, "F"), "MAO") << "no ship there";
  EXPECT_EQ(hit("Bul.e", 0, "F"), "BLA") << "drawn elsewhere while it is dislodged";
}

}  // namespace
}  // namespace orb::tests
