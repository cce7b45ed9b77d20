#include "session/history.h"

#include "support/boards.h"

#include <gtest/gtest.h>

#include <string>

namespace orb::tests {
namespace {

using session::Situation;

TEST(History, ForgetsTheOldestStepsWhereTheyTakeTooMuch) {
  session::History history(1'000'000);
  Situation large{EmptyBoard("Spring", "moves")};
  large.Game.OrdersList.assign(1, std::string(300'000, 'x'));
  for (int i = 0; i < 10; ++i)
    history.Record({std::to_string(i)}, large);
  int kept = 0;
  history.ForEach([&](Situation& /*there*/) { ++kept; });
  EXPECT_TRUE(kept == 2 || kept == 3) << kept;
  EXPECT_EQ(history.Last()->Name.Text, "9");
  large.Game.ReportLines.Append(std::string(2'000'000, 'x'));
  history.Record({"too large"}, large);
  ASSERT_NE(history.Last(), nullptr);
  history.Back(large);
  EXPECT_EQ(history.Last(), nullptr);
}

}  // namespace
}  // namespace orb::tests
