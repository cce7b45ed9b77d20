#include "history/sequence_names.h"

#include <gtest/gtest.h>

#include <utility>
#include <vector>

namespace orb::tests {
namespace {

using Paths = std::vector<std::filesystem::path>;

TEST(SequenceNames, AreSortedBySeason) {
  const std::vector<std::pair<Paths, Paths>> cases = {
      {{"x/con_a01.orb", "x/con_S02.orb", "b/CON_s01.ORB"},
       {"b/CON_s01.ORB", "x/con_a01.orb", "x/con_S02.orb"}},
      {{"GameS02.orb", "GameA01.orb", "s01"}, {"s01", "GameA01.orb", "GameS02.orb"}},
      {{"s01 c.orb", "S01 b.orb", "s01 a.orb"}, {"s01 a.orb", "S01 b.orb", "s01 c.orb"}},
      {{"a24_s03.orb", "s02 extra01.orb"}, {"s02 extra01.orb", "a24_s03.orb"}},
      {{"s00", "a99", "s98", "a01"}, {"s98", "a99", "s00", "a01"}},
      {{"s60", "s01", "a00"}, {"a00", "s01", "s60"}}};
  for (const auto& [given, sorted] : cases) {
    const auto sequence = history::SortBySeason(given);
    EXPECT_EQ(sequence.Files, sorted);
    EXPECT_TRUE(sequence.Unfit.empty());
  }
}

TEST(SequenceNames, OthersAreNamed) {
  const Paths unfit = {"s1.orb", "s1901.orb", "x01", "", "a", "s01x/game.orb", "s0a1"};
  const auto sequence = history::SortBySeason(unfit);
  EXPECT_EQ(sequence.Unfit, unfit);
  EXPECT_TRUE(sequence.Files.empty());
}

}  // namespace
}  // namespace orb::tests
