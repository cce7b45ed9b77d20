#include "orders/binding.h"

#include "model/errors.h"
#include "orders/parser.h"
#include "support/scripted_messages.h"
#include "support/situation.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>
#include <string_view>
#include <vector>

namespace orb::tests {
namespace {

using model::Answer;
using model::GameState;
using orders::OrderTable;
using testing::ElementsAre;

/// Units with orders, bound; "> " begins an order without a unit of its own.
struct Bound {
  GameState Game;
  OrderTable Orders;
  orders::OrdersOfUnits OrdersOfUnits;
  ScriptedMessages Messages;
  bool Continued = false;

  explicit Bound(const std::vector<std::string>& lines, std::vector<Answer> answers = {})
      : Game(Board("Spring", "moves", lines)), Messages(std::move(answers)) {
    orders::SetOrderTexts(Game.OrdersList, Orders);
    const model::Map& map = *Game.Map;
    orders::Questions questions(Messages);
    orders::ParseOrders(map, Game.Stage, Orders);
    Continued =
        orders::CheckOrderSyntax(Orders, questions) &&
        orders::BindOrdersToUnits(map, orders::PiecesOf(Game), Orders, OrdersOfUnits, questions) &&
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

TEST(Binding, YesToAllEndsTheQuestionsOfOneResolution) {
  struct Case {
    std::vector<Answer> Answers;
    std::size_t Questions;
    bool Continued;
  };
  for (const Case& c : std::vector<Case>{{{}, 3, true},
                                         {{Answer::YesToAll}, 1, true},
                                         {{Answer::Yes, Answer::YesToAll}, 2, true},
                                         {{Answer::No}, 1, false},
                                         {{Answer::Yes, Answer::Yes, Answer::No}, 3, false}}) {
    const Bound bound({"ENG A(Lon)", "ENG A(Wal)", "ENG A(Yor)"}, c.Answers);
    EXPECT_EQ(bound.Messages.Questions.size(), c.Questions);
    EXPECT_EQ(bound.Continued, c.Continued);
  }
}

TEST(Binding, AsksInTheOrderOfTheChecks) {
  const Bound bound({"ENG A(Lon) S A(Yor) - NTH", "ENG A(Yor) - NTH", "FRA A(Par) S A(Mar) hold",
                     "FRA A(Mar)", "> FRA A(Gas) hold", "> no order", "FRA A(Bre) S A(Pic) - Bel"});
  EXPECT_THAT(bound.Messages.Questions,
              ElementsAre("Warning: no order\rsyntax error.\rContinue?",
                          "Warning: FRA A(Gas) hold\rno such unit.\rContinue?",
                          "Warning: FRA A(Mar) unordered.\rContinue?",
                          "Warning: ENG A(Yor) - NTH\rimpossible move.\rContinue?",
                          "Warning: ENG A(Lon) S A(Yor) - NTH\rimpossible support.\rContinue?",
                          "Warning: FRA A(Par) S A(Mar) hold\rimpossible support.\rContinue?"))
      << "an order that is not used is not asked about";
  EXPECT_EQ(bound.Orders[6].Result, orders::OrderResult::NotUsed);
}

TEST(Linking, ASupportOrConvoyFitsOneOrder) {
  struct Case {
    std::vector<std::string> Lines;
    int Linked;  ///< order that the first order refers to, 0: none
    bool Carried;
  };
  const std::vector<Case> cases = {
      {{"ENG F(NTH) S A(Lon) - Yor", "ENG A(Lon) - Yor"}, 2, false},
      {{"ENG F(NTH) S A(Lon) - Yor", "ENG A(Lon) - Wal"}, 0, false},
      {{"FRA A(Gas) S F(MAO) - Spa", "FRA F(MAO) - Spa.n"}, 0, false},
      {{"ENG F(NTH) S FRA A(Lon) - Yor", "ENG A(Lon) - Yor"}, 0, false},
      {{"ENG F(NTH) S F(Lon) - Yor", "ENG A(Lon) - Yor"}, 0, false},
      {{"ENG F(NTH) S F(Lon) hold", "ENG F(Lon) HOLD"}, 2, false},
      {{"ENG F(NTH) S F(Lon) hold", "ENG F(Lon)"}, 2, false},
      {{"ENG F(NTH) S F(Lon) hold", "ENG F(Lon) - Wal"}, 0, false},
      {{"ENG F(NTH) S F(Lon) hold", "ENG F(Lon) S F(NTH) hold"}, 2, false},
      {{"ENG F(Edi) S F(NTH) hold", "ENG F(NTH) C A(Lon) - Nwy"}, 2, false},
      {{"ENG F(NTH) S F(Lon) - Wal", "ENG F(Lon) hold"}, 0, false},
      {{"ENG F(NTH) S F(Lon) hold", "ENG F(Lon) hold", "> ENG F(Lon) hold"}, 3, false},
      {{"ENG F(NTH) S F(Lon) hold", "ENG F(Lon) hold", "> ENG F(Lon) - Wal"}, 2, false},
      {{"ENG F(NTH) S F(Lon) hold", "ENG F(Lon) stays"}, 2, false},
      {{"ENG F(NTH) C A(Lon) - Nwy", "ENG A(Lon) - Nwy"}, 2, true},
      {{"ENG F(NTH) C A(Lon) - Nwy", "ENG A(Lon) - Wal"}, 0, false},
      {{"ENG F(NTH) C A(Lon) - Nwy", "ENG A(Lon) hold"}, 0, false},
  };
  for (const Case& c : cases) {
    SCOPED_TRACE(testing::PrintToString(c.Lines));
    const Bound bound(c.Lines);
    EXPECT_EQ(bound.Orders[1].LinkedOrder, c.Linked);
    EXPECT_EQ(bound.Orders[1].Result == orders::OrderResult::NotUsed, c.Linked == 0);
    EXPECT_EQ(bound.Orders[2].ViaConvoy, c.Carried);
  }
}

TEST(Possible, WhatAUnitCanReach) {
  const std::vector<std::pair<std::vector<std::string>, std::string>> cases = {
      {{"ENG A(Lon) - Wal"}, ""},
      {{"ENG A(Lon) - Bel"}, "impossible move"},
      {{"ENG A(Lon) - NTH"}, "impossible move"},
      {{"ENG A(Lon) - Lon"}, "impossible move"},
      {{"ENG F(Edi) - Lvp"}, "impossible move"},
      {{"FRA A(Gas) - Spa.n"}, "impossible move"},
      {{"FRA F(Gas) - Spa"}, "impossible move"},
      {{"FRA F(Gas) - Spa.n"}, ""},
      {{"ENG A(Lon) - Tun", "ENG F(NTH) C A(Lon) - Tun"}, ""},
      {{"ENG A(Lon) - BAR", "ENG F(NTH) C A(Lon) - BAR"}, "impossible move"},
      {{"ENG A(Lon) - Spa.n", "ENG F(NTH) C A(Lon) - Spa.n"}, "impossible move"},
      {{"FRA F(Gas) S F(MAO) - Spa.s", "FRA F(MAO) - Spa.s"}, ""},
      {{"FRA F(WES) S A(Gas) - Spa", "FRA A(Gas) - Spa"}, ""},
      {{"FRA A(Gas) S F(Spa.s) hold", "FRA F(Spa.s) hold"}, ""},
      {{"FRA F(Spa.n) S A(Mar) hold", "FRA A(Mar) hold"}, "impossible support"},
      {{"FRA A(Par) S F(MAO) - Bre", "FRA F(MAO) - Bre"}, ""},
      {{"FRA A(Par) S F(Bre) - MAO", "FRA F(Bre) - MAO"}, "impossible support"},
      {{"ENG F(BAR) C A(Lon) - Tun", "ENG A(Lon) - Tun"}, ""},
  };
  for (const auto& [lines, result] : cases)
    EXPECT_EQ(ResultWord(Bound(lines).Orders[1].Result), result) << lines[0];
}

}  // namespace
}  // namespace orb::tests
