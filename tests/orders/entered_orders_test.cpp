#include "orders/entered_orders.h"

#include "support/boards.h"
#include "support/drawn_cases.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace orb::tests {
namespace {

TEST(EnteredOrders, AreTheReadableLinesOfTheStage) {
  for (const auto& [row, expected] : LoadDrawnRows("orders/lines.txt", "entered")) {
    const auto close = row.find(") ");
    model::GameState game = EmptyBoard("Autumn", row.substr(1, close - 1));
    OrdersOf(game) = {"what?", row.substr(close + 2)};
    std::string read;
    for (const orders::OrderOutcome& order : orders::EnteredOrders(game)) {
      EXPECT_EQ(order.Outcome, orders::Outcome::Entered);
      for (const std::string& field :
           {order.Power, order.UnitType, order.Location, std::string(KindWord(order.Kind)),
            order.OtherLocation, std::string(">"), order.Destination}) {
        if (!field.empty()) read.append(read.empty() ? "" : " ").append(field);
      }
    }
    EXPECT_EQ(read.empty() ? "nothing" : read, expected) << row;
  }
}

TEST(EnteredOrders, ConvoyOrdersMakeConvoyedMoves) {
  model::GameState game = EmptyBoard("Spring", "moves");
  game.OrdersList = {"ENG A(Yor) - Nwy", "ENG A(Lon) - Nwy", "FRA F(NTH) C ENG A(Yor) - Nwy"};
  const auto read = orders::EnteredOrders(game);
  EXPECT_TRUE(read.at(0).ViaConvoy && !read.at(1).ViaConvoy && !read.at(2).ViaConvoy);
  game.OrdersList.assign(200, "ENG A(Yor) - Nwy");
  EXPECT_EQ(orders::EnteredOrders(game).size(), 200U) << "more than can be resolved";
}

}  // namespace
}  // namespace orb::tests
