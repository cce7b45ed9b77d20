#include "adjudication/stages.h"

#include "adjudication/usual/stages.h"
#include "model/errors.h"
#include "support/boards.h"
#include "support/scripted_messages.h"

#include <gtest/gtest.h>

#include <string>
#include <string_view>
#include <vector>

namespace orb::tests {
namespace {

using model::GameState;

TEST(Stages, TablesHaveBounds) {
  struct Case {
    std::string Stage, Unit, Order;
    std::size_t Orders;
    int ReportLines;
    bool Fits;
  };
  const std::vector<Case> cases = {
      {"moves", "ENG A(Lon)", "ENG A(Lon) hold", 80, 0, true},
      {"moves", "ENG A(Lon)", "ENG A(Lon) hold", 81, 0, false},
      {"moves", "ENG A(Lon)", "ENG A(Edi) hold", 79, 0, true},
      {"moves", "ENG A(Lon)", "ENG A(Edi) hold", 80, 0, false},
      {"retreats", "ENG A(Lon) <Wal", "ENG A(Edi) disband", 79, 99, true},
      {"retreats", "ENG A(Lon) <Wal", "ENG A(Edi) disband", 80, 0, false},
      {"retreats", "ENG A(Lon) <Wal", "ENG A(Lon) disband", 1, 100, false},
      {"adjustments", "", "ENG disband A(Lon)", 2, 97, true},
      {"adjustments", "", "ENG disband A(Lon)", 2, 98, false},
  };
  for (const Case& c : cases) {
    SCOPED_TRACE(c.Stage + ": " + c.Order + " " + std::to_string(c.Orders));
    GameState game = EmptyBoard("Spring", c.Stage);
    AddDrawnUnit(game, c.Unit);
    OrdersOf(game).assign(c.Orders, c.Order);
    game.ReportLines.SetCount(c.ReportLines);
    GameState same = game;
    ScriptedMessages messages;
    if (c.Fits) {
      EXPECT_TRUE(adjudication::ResolveStage(game, messages).Completed);
      EXPECT_TRUE(adjudication::usual::ResolveStage(same).Completed);
    } else {
      EXPECT_THROW(adjudication::ResolveStage(game, messages), model::IndexOutOfRange);
      EXPECT_THROW(adjudication::usual::ResolveStage(same), model::IndexOutOfRange);
    }
  }
}

TEST(Stages, OnlyThreeStagesCanBeResolved) {
  ScriptedMessages messages;
  for (const char* stage : {"finished", "", "Moves"}) {
    GameState game = EmptyBoard("Spring", stage);
    EXPECT_THROW(adjudication::ResolveStage(game, messages), model::FatalError) << stage;
    EXPECT_THROW(adjudication::usual::ResolveStage(game), model::FatalError) << stage;
  }
}

}  // namespace
}  // namespace orb::tests
