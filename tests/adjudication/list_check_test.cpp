#include "adjudication/list_check.h"

#include "orders/order_list.h"
#include "support/boards.h"
#include "support/drawn_cases.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace orb::tests {
namespace {

using adjudication::CheckList;
using adjudication::ListCheck;

std::string JoinProblems(const adjudication::LineProblems& problems) {
  std::string text;
  for (const std::string& problem : problems)
    text.append(text.empty() ? "" : "; ").append(problem);
  return text;
}

/// What the check says, in its order: "ENG A(Lon): unordered".
std::vector<std::string> Problems(const model::GameState& game) {
  const ListCheck check = CheckList(game);
  std::vector<std::string> problems;
  for (std::size_t i = 0; i < check.Lines.size(); ++i) {
    if (check.Lines[i].empty()) continue;
    problems.push_back(orders::StageList(game)[i]);
    problems.back().append(": ").append(JoinProblems(check.Lines[i]));
  }
  for (const std::string& unit : check.Unordered)
    problems.push_back(unit + ": unordered");
  for (const auto& [power, text] : check.Powers)
    problems.push_back(power + ": " + text);
  return problems;
}

TEST(ListCheck, SaysAsDrawn) {
  for (const DrawnCase& drawn : LoadDrawnCases("adjudication/checks.txt")) {
    SCOPED_TRACE(drawn.Name);
    model::GameState game = Board("Autumn", drawn.Note("stage"), drawn.Drawing);
    for (const std::string& note : drawn.Texts("owns"))
      Own(game, note);
    for (const std::string& place : Words(drawn.Note("contested")))
      Live(game, place).Uncontested = false;
    EXPECT_THAT(Problems(game), testing::ElementsAreArray(drawn.Texts("check")));
  }
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
