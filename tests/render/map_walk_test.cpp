#include "render/map_walk.h"

#include "support/boards.h"

#include <gtest/gtest.h>

#include <map>
#include <set>
#include <string>
#include <vector>

namespace orb::tests {
namespace {

using render::Direction;

constexpr double Aspect = 1.3;

using Edges = std::multimap<int, int>;

std::set<int> Reached(const Edges& edges) {
  std::set<int> reached{1};
  std::vector<int> open{1};
  while (!open.empty()) {
    const auto [first, last] = edges.equal_range(open.back());
    open.pop_back();
    for (auto edge = first; edge != last; ++edge) {
      if (reached.insert(edge->second).second) open.push_back(edge->second);
    }
  }
  return reached;
}

TEST(MapWalk, ArrowsLeadFromEveryStopToEveryOther) {
  const model::Map& map = *RealMap();
  Edges forth;
  Edges back;
  std::set<int> stops;
  for (int row = 1; row <= map.Provinces.Count(); ++row) {
    if (!render::IsStop(map, row)) continue;
    stops.insert(row);
    for (const auto way : {Direction::Left, Direction::Right, Direction::Up, Direction::Down}) {
      const int next = render::StopTowards(map, row, way, Aspect);
      forth.emplace(row, next);
      back.emplace(next, row);
    }
  }
  EXPECT_EQ(Reached(forth), stops);
  EXPECT_EQ(Reached(back), stops);
}

TEST(MapWalk, LeadsToNeighboursAndNames) {
  const model::Map& map = *RealMap();
  const auto row = [&](const char* name) { return model::FindProvince(map, name); };
  const auto towards = [&](const char* from, Direction way) {
    return model::LocationName(map, render::StopTowards(map, row(from), way, Aspect));
  };
  EXPECT_EQ(towards("Mos", Direction::Up), "Stp");
  EXPECT_EQ(towards("Lon", Direction::Up), "Yor");
  EXPECT_EQ(towards("NAO", Direction::Left), "NAO");
  const auto named = [&](const char* typed, const char* from, bool fromHere) {
    return model::LocationName(map, render::StopNamed(map, typed, row(from), fromHere));
  };
  EXPECT_EQ(named("bur", "Par", true), "Bur");
  EXPECT_EQ(named("SEA", "Par", true), named("sea", "Par", true));
  EXPECT_EQ(named("stp", "Stp", false), "Stp.n") << "the next of that name";
  EXPECT_EQ(named("stp", "Stp", true), "Stp");
  EXPECT_EQ(named("tyr", "TYS", true), "Tyr") << "the abbreviation, not Tyrrhenian";
  EXPECT_EQ(named("lyon", "Par", true), "GOL");
  EXPECT_EQ(named("xyz", "Par", true), "");
}

}  // namespace
}  // namespace orb::tests
