#include "orders/binding.h"

#include "orders/parser.h"
#include "support/boards.h"
#include "support/drawn_cases.h"
#include "support/scripted_messages.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace orb::tests {
namespace {

using model::GameState;
using orders::OrderTable;
using testing::ElementsAre;

/// Units with orders, bound; "> " begins an order without a unit of its own.
struct Bound {
  GameState Game;
  OrderTable Orders;
  orders::OrdersOfUnits OrdersOfUnits;

  explicit Bound(const std::vector<std::string>& lines) : Game(Board("Spring", "moves", lines)) {
    orders::SetOrderTexts(Game.OrdersList, Orders);
    const model::Map& map = *Game.Map;
    ScriptedMessages yes;
    orders::Questions questions(yes);
    orders::ParseOrders(map, Game.Stage, Orders);
    orders::CheckOrderSyntax(Orders, questions);
    orders::BindOrdersToUnits(map, orders::PiecesOf(Game), Orders, OrdersOfUnits, questions);
    orders::CheckImpossibleOrders(map, Orders, questions);
  }
};

TEST(Binding, MatchesTypePowerAndWholeLocation) {
  const Bound bound({"RUS F(Stp.s) hold", "> RUS F(Stp) hold", "> RUS F(Stp.n) hold",
                     "> RUS A(Stp.s) hold", "> ENG F(Stp.s) hold", "> RUS F(Stp.s) - BOT"});
  std::vector<std::string> results;
  for (const orders::OrderLine& order : bound.Orders)
    results.emplace_back(ResultWord(order.Result));
  EXPECT_THAT(results,
              ElementsAre("", "no such unit", "no such unit", "no such unit", "no such unit", ""));
  EXPECT_EQ(bound.Orders[1].UnitIndex, 1);
  EXPECT_EQ(bound.Orders[6].UnitIndex, 1);
  EXPECT_EQ(bound.OrdersOfUnits[1], 6) << "the later of two orders is the unit's";
}

TEST(Binding, AnUnorderedUnitHoldsAtTheEndOfTheTable) {
  const Bound bound({"ENG A(Lon)", "FRA A(Par) hold", "RUS F(Stp.s)"});
  ASSERT_EQ(bound.Orders.Count(), 3);
  const orders::OrderLine& order = bound.Orders[3];
  EXPECT_EQ(order.Text, "RUS F(Stp.s) unordered; hold");
  EXPECT_EQ(UnitName(*bound.Game.Map, order), "RUS F(Stp.s)");
  EXPECT_EQ(order.Kind, orders::OrderKind::Hold);
  EXPECT_EQ(order.UnitIndex, 3);
  EXPECT_EQ(bound.OrdersOfUnits[3], 3);
  EXPECT_TRUE(order.Active && !order.Failed && order.Supplied);
}

TEST(Binding, ASupportOrConvoyFitsOneOrder) {
  for (const auto& [row, link] : LoadDrawnRows("orders/lines.txt", "links")) {
    const Bound bound(Parts(row));
    EXPECT_EQ(std::to_string(bound.Orders[1].LinkedOrder) + (bound.Orders[2].ViaConvoy ? "*" : ""),
              link)
        << row;
    EXPECT_EQ(bound.Orders[1].Result == orders::OrderResult::NotUsed, link == "0") << row;
  }
}

TEST(Binding, RejectsWhatAUnitCannotReach) {
  for (const auto& [row, result] : LoadDrawnRows("orders/lines.txt", "possible")) {
    const auto word = ResultWord(Bound(Parts(row)).Orders[1].Result);
    EXPECT_EQ(word.empty() ? "possible" : word, result) << row;
  }
}

}  // namespace
}  // namespace orb::tests
