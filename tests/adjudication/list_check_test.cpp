#include "adjudication/list_check.h"

#include "support/situation.h"

#include <gtest/gtest.h>

namespace orb::tests {
namespace {

using adjudication::CheckList;
using adjudication::JoinProblems;
using adjudication::ListCheck;

TEST(ListCheck, TellsLinesUnitsAndPowersApart) {
  const model::GameState moves =
      Board("Spring", "moves",
            {"FRA A(Par) - Bur", "GER A(Mun) S FRA A(Par) - Gas", "GER A(Ruh)", "GER A(Kie)",
             "> ENG", "GER F(Den) S A(Kie) hold", "> FRA A(Par) - Lon"});
  const ListCheck check = CheckList(moves);
  const std::vector<std::string> expected = {
      "ordered again: FRA A(Par) - Lon",
      "not used: FRA A(Par) was ordered to move to Lon, not to move to Gas",
      "syntax error: the unit is missing", "", "impossible move: no army can move from Par to Lon"};
  ASSERT_EQ(check.Lines.size(), expected.size());
  for (std::size_t i = 0; i < expected.size(); ++i)
    EXPECT_EQ(JoinProblems(check.Lines[i]), expected[i]);
  EXPECT_EQ(check.Unordered, (std::vector<std::string>{"GER A(Ruh)", "GER A(Kie)"}));
  EXPECT_TRUE(check.Powers.empty());
  model::GameState adjustments = Board("Autumn", "adjustments", {"> fra build a(Par)"});
  Own(adjustments, "FRA Par Mar");
  const ListCheck later = CheckList(adjustments);
  EXPECT_EQ(JoinProblems(later.Lines.at(0)), "syntax error: \"a\" is neither A nor F");
  ASSERT_EQ(later.Powers.size(), 1U);
  EXPECT_EQ(later.Powers[0].Power, "FRA");
  EXPECT_TRUE(CheckList(EmptyBoard("Spring", "finished")).Lines.empty());
}

TEST(ListCheck, LinesWithoutRoomAreToldSo) {
  // Of the two units one has its order before the list is too long, the other past its end.
  for (const std::string stage : {"moves", "retreats", "adjustments"}) {
    for (const int lines : {78, 79, 80, 200}) {
      model::GameState game = Board("Autumn", stage, {"FRA A(Bur) <Mun", "GER A(Mun)"});
      auto& list = OrdersOf(game);
      list.assign(static_cast<std::size_t>(lines), "A)(");
      if (lines > 78) list[78] = "FRA A(Bur) disband";
      const ListCheck check = CheckList(game);
      ASSERT_EQ(check.Lines.size(), list.size());
      const int withoutOrder = stage == "moves" ? 1 : 0;
      const int room = stage == "adjustments" ? 80 : 80 - withoutOrder;
      for (int i = 0; i < lines; ++i) {
        const std::string text = JoinProblems(check.Lines.at(static_cast<std::size_t>(i)));
        EXPECT_EQ(text.starts_with("too many orders"), i >= room) << stage << lines << " " << i;
      }
    }
  }
}

}  // namespace
}  // namespace orb::tests
