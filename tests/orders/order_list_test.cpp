#include "orders/order_list.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace orb::orders {
namespace {

using Lines = std::vector<std::string>;

TEST(OrderList, AnOrderReplacesTheLastOneOfItsUnit) {
  struct Case {
    Lines Before;
    std::string Typed;
    Lines After;
  };
  const std::vector<Case> cases{
      {{}, "ENG A(Lvp) - Yor", {"ENG A(Lvp) - Yor"}},
      {{"ENG F(Lon) hold"}, "ENG F(Lon", {"ENG F(Lon) hold"}},
      {{"ENG F(Lon) hold"}, "", {"ENG F(Lon) hold"}},
      {{"ENG A(Lvp) hold", "FRA A(Par) hold", "ENG A(Lvp) - Yor"},
       "ENG A(Lvp) - Wal",
       {"ENG A(Lvp) hold", "FRA A(Par) hold", "ENG A(Lvp) - Wal"}},
      {{"ENG A(Lvp) hold", "ENG F(Lon) hold"},
       "ENG A(Lvp) S F(Edi) hold",
       {"ENG F(Lon) hold", "ENG A(Lvp) S F(Edi) hold"}},
      {{"ENG A(Lvp) hold"}, "ENG F(Lvp) hold", {"ENG A(Lvp) hold", "ENG F(Lvp) hold"}},
      {{"ENG A(Lvp) hold"}, "ENG A(LVP) hold", {"ENG A(Lvp) hold", "ENG A(LVP) hold"}},
      {{"ENG A(Lvp) hold"}, " ENG A(Lvp) hold ", {"ENG A(Lvp) hold", " ENG A(Lvp) hold "}},
      {{"ENG A(Lv"}, "ENG A(Lvp) hold", {"ENG A(Lv", "ENG A(Lvp) hold"}}};
  for (const Case& c : cases) {
    Lines list = c.Before;
    EXPECT_EQ(FileOrder(list, c.Typed), c.After != c.Before) << c.Typed;
    EXPECT_EQ(list, c.After) << c.Typed;
  }
}

TEST(OrderList, DeletesOnlyALineThatIsThere) {
  Lines list{"a", "b", "c"};
  EXPECT_FALSE(DeleteOrder(list, -1) || DeleteOrder(list, 3));
  EXPECT_TRUE(DeleteOrder(list, 1));
  EXPECT_THAT(list, testing::ElementsAre("a", "c"));
}

}  // namespace
}  // namespace orb::orders
