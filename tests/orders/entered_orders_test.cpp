#include "orders/entered_orders.h"

#include "support/boards.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace orb::tests {
namespace {

TEST(EnteredOrders, AreTheReadableLinesOfTheStage) {
  struct Case {
    std::string Stage, Line, Read;  ///< power, type, location, kind, other, destination
  };
  const std::vector<Case> cases = {
      {"moves", " ENG A(Lon) - Yor ", "ENG A Lon - > Yor"},
      {"moves", "ENG A(Lon) - NTH", "ENG A Lon - > NTH"},
      {"moves", "FRA A(Lon) Hold", "FRA A Lon HOLD >"},
      {"moves", "ENG A(Lon) s FRA F(Bre) hold", "ENG A Lon S Bre >"},
      {"moves", "ENG A(Lon) S F(Bre) - MAO", "ENG A Lon S Bre > MAO"},
      {"moves", "ENG F(NTH) C A(Yor) - Nwy", "ENG F NTH C Yor > Nwy"},
      {"moves", "ENG A(Lon) - Xyz", ""},
      {"moves", "ENG A(Lon) retreat Yor", ""},
      {"retreats", "ENG A(Lon) retreat Yor", "ENG A Lon RETREAT > Yor"},
      {"retreats", "ENG A(Lon) disband", "ENG A Lon DISBAND >"},
      {"retreats", "ENG A(Lon) retreat", ""},
      {"adjustments", "eng build F(Stp.n)", "ENG F Stp.n BUILD >"},
      {"adjustments", "ENG disband A(Lon)", "ENG A Lon DISBAND >"},
      {"adjustments", "ENG A(Lon) disband", ""},
      {"finished", "ENG A(Lon) hold", ""}};
  for (const Case& test : cases) {
    model::GameState game = EmptyBoard("Autumn", test.Stage);
    OrdersOf(game) = {"what?", test.Line};
    std::string read;
    for (const orders::OrderOutcome& order : orders::EnteredOrders(game)) {
      EXPECT_EQ(order.Outcome, orders::Outcome::Entered);
      for (const std::string& field :
           {order.Power, order.UnitType, order.Location, std::string(KindWord(order.Kind)),
            order.OtherLocation, std::string(">"), order.Destination}) {
        if (!field.empty()) read.append(read.empty() ? "" : " ").append(field);
      }
    }
    EXPECT_EQ(read, test.Read) << test.Line;
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
