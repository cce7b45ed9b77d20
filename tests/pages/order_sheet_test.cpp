#include "orders/exchange/check_line.h"
#include "orders/exchange/read_orders.h"
#include "support/boards.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace orb::tests {
namespace {

TEST(CheckLine, TellsWhenASheetIsOfSomethingElse) {
  model::GameState game = Board("Spring", "moves", {"FRA A(Par)"});
  const std::string own = exchange::CheckLineText(game, "FRA");
  model::GameState other = game;
  other.Title = "FRA A(Par) - Bur";
  model::GameState later = game;
  later.Year = 1903;
  later.Stage = model::Stage::Retreats;
  model::GameState retreats = game;
  retreats.Stage = model::Stage::Retreats;
  struct Case {
    std::string Text, Power;
    std::vector<std::string> Warnings;
  };
  const std::vector<Case> cases = {
      {own, "", {}},
      {"> " + own + "\r\n", "FRA", {}},
      {own, "GER", {"The order sheet is of FRA, not of GER."}},
      {exchange::CheckLineText(other, "FRA"), "", {"The order sheet of FRA is of another game."}},
      {exchange::CheckLineText(later, "FRA"),
       "",
       {"The order sheet of FRA is of Spring 1903; the game is in Spring 1901."}},
      {exchange::CheckLineText(retreats, "FRA") + exchange::CheckLineText(retreats, "FRA"),
       "",
       {"The order sheet of FRA is for the stage \"retreats\"; the game is in the stage "
        "\"moves\"."}},
      {"[ORB sheet: ] [ORB sheet: FRA a b] [ORB sheet: FRA\n a b c]", "GER", {}}};
  for (const auto& [text, power, warnings] : cases)
    EXPECT_EQ(exchange::SheetWarnings(game, text, power), warnings) << text;
}

TEST(CheckLine, IsNoOrderAndMovesNothing) {
  const model::GameState game = Board("Spring", "moves", {"FRA A(Par)", "FRA F(Bre)"});
  const std::string text =
      "FRA A(Par) - Bur\n" + exchange::CheckLineText(game, "FRA") + " FRA F(Bre) - MAO\n";
  const auto lines = exchange::ReadOrders(game, text, {});
  ASSERT_EQ(lines.size(), 2U);
  for (const exchange::ReadLine& line : lines)
    EXPECT_EQ(line.Kind, exchange::LineKind::Order) << line.Reason;
  EXPECT_EQ(text.substr(lines[1].Place.Offset, lines[1].Place.Length), "FRA F(Bre) - MAO");
}

}  // namespace
}  // namespace orb::tests
