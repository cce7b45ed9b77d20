#include "session/commands.h"

#include "model/errors.h"
#include "session/queries.h"
#include "session/session.h"
#include "support/boards.h"
#include "support/scripted_messages.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <tuple>
#include <vector>

namespace orb::tests {
namespace {

using model::Answer;
using session::Command;
using session::Situation;
using testing::ElementsAre;
using testing::StartsWith;

TEST(Commands, RefuseInAStageWhereTheyMeanNothing) {
  ScriptedMessages messages;
  const Command next = session::NextSeason;
  const Command undo = [&](Situation& situation) { session::UndoSeason(situation, messages); };
  const Command check = [](Situation& situation) { session::CheckOrders(situation); };
  const Command draw = [](Situation& situation) { session::EnteredOrders(situation); };
  const Command resolve = [&](Situation& situation) { session::Resolve(situation, messages); };
  const std::vector<std::tuple<const char*, Command, const char*>> cases = {
      {"moves", next, "The season is not finished: the game is in the stage \"moves\"."},
      {"adjustments", next,
       "The season is not finished: the game is in the stage \"adjustments\"."},
      {"moves", undo, "There is nothing to take back: the season is at its start."},
      {"finished", check, "There are no orders to check in the stage \"finished\"."},
      {"finished", draw, "There are no orders to draw in the stage \"finished\"."},
      {"finished", resolve, "There is nothing to resolve in the stage \"finished\"."},
  };
  for (const auto& row : cases) {
    const auto run = [&row] {
      Situation situation{EmptyBoard("Spring", std::get<0>(row))};
      std::get<1>(row)(situation);
    };
    EXPECT_THAT(run, testing::ThrowsMessage<model::FatalError>(std::get<2>(row)));
  }
}

TEST(Commands, OrdersOfATextTakeThePlaceOfTheList) {
  Situation situation{Board("Spring", "moves", {"ENG A(Lon) hold", "ENG F(Edi)", "FRA A(Par)"})};
  ScriptedMessages no({Answer::No});
  const auto unclear =
      session::ReplaceOrdersByText(situation, "F Edi-Clyed\nA Paris to somewhere\n", {"ENG", {}},
                                   session::Doubtful::LeftOut, no);
  EXPECT_THAT(situation.Game.OrdersList, ElementsAre("ENG F(Edi) - Cly"));
  ASSERT_EQ(no.Shown.size(), 1U);
  EXPECT_EQ(no.Shown[0].first, "F Edi-Clyed: \"Clyed\" is read as Clyde");
  ASSERT_EQ(unclear.size(), 1U);
  EXPECT_FALSE(session::GoOnWithout(unclear, no));
  EXPECT_THAT(no.Questions, ElementsAre(StartsWith("Warning: A Paris to somewhere\r")));
}

}  // namespace
}  // namespace orb::tests
