#include "orders/order_list.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace orb::orders {
namespace {

using Lines = std::vector<std::string>;

struct FilingCase {
  std::string Name;
  Lines Before;
  std::string Typed;
  Lines After;
};

class Filing : public testing::TestWithParam<FilingCase> {};

TEST_P(Filing, LeavesTheList) {
  const FilingCase& given = GetParam();
  Lines list = given.Before;
  EXPECT_EQ(FileOrder(list, given.Typed), given.After != given.Before);
  EXPECT_EQ(list, given.After);
}

INSTANTIATE_TEST_SUITE_P(
    OrderList, Filing,
    testing::Values(FilingCase{"FirstOrder", {}, "ENG A(Lvp) - Yor", {"ENG A(Lvp) - Yor"}},
                    FilingCase{
                        "WithoutBracket", {"ENG F(Lon) hold"}, "ENG F(Lon", {"ENG F(Lon) hold"}},
                    FilingCase{"Empty", {"ENG F(Lon) hold"}, "", {"ENG F(Lon) hold"}},
                    FilingCase{"NewOrderMovesToTheEnd",
                               {"ENG A(Lvp) hold", "ENG F(Lon) hold"},
                               "ENG A(Lvp) - Yor",
                               {"ENG F(Lon) hold", "ENG A(Lvp) - Yor"}},
                    FilingCase{"OnlyTheLastOfTwoIsReplaced",
                               {"ENG A(Lvp) hold", "FRA A(Par) hold", "ENG A(Lvp) - Yor"},
                               "ENG A(Lvp) - Wal",
                               {"ENG A(Lvp) hold", "FRA A(Par) hold", "ENG A(Lvp) - Wal"}},
                    FilingCase{"AnotherTypeIsAnotherUnit",
                               {"ENG A(Lvp) hold"},
                               "ENG F(Lvp) hold",
                               {"ENG A(Lvp) hold", "ENG F(Lvp) hold"}},
                    FilingCase{"CaseTellsApart",
                               {"ENG A(Lvp) hold"},
                               "ENG A(LVP) hold",
                               {"ENG A(Lvp) hold", "ENG A(LVP) hold"}},
                    FilingCase{"BlanksAreKeptAndCompared",
                               {"ENG A(Lvp) hold"},
                               " ENG A(Lvp) hold ",
                               {"ENG A(Lvp) hold", " ENG A(Lvp) hold "}},
                    FilingCase{"TheSecondUnitDoesNotMatter",
                               {"ENG A(Lvp) S A(Lon) hold"},
                               "ENG A(Lvp) S F(Edi) hold",
                               {"ENG A(Lvp) S F(Edi) hold"}},
                    FilingCase{"LineShorterThanTheUnit",
                               {"ENG A(Lv"},
                               "ENG A(Lvp) hold",
                               {"ENG A(Lv", "ENG A(Lvp) hold"}}),
    [](const auto& given) { return given.param.Name; });

TEST(OrderList, DeletesOnlyALineThatIsThere) {
  Lines list{"a", "b", "c"};
  EXPECT_FALSE(DeleteOrder(list, -1));
  EXPECT_FALSE(DeleteOrder(list, 3));
  EXPECT_TRUE(DeleteOrder(list, 1));
  EXPECT_THAT(list, testing::ElementsAre("a", "c"));
}

}  // namespace
}  // namespace orb::orders
