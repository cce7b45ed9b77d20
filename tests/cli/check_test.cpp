#include "cli/desk.h"
#include "text/strings.h"

#include <gtest/gtest.h>

namespace orb::tests {
namespace {

struct Case {
  std::string Game;
  std::string_view Orders, Out;
};

void ExpectProblems(const std::vector<Case>& cases) {
  for (const Case& c : cases) {
    SCOPED_TRACE(c.Orders);
    const Desk desk;
    desk.Write("a.orb", c.Game);
    desk.Write("o.txt", c.Orders);
    const Outcome outcome = desk.Run("check --orders @o.txt @a.orb");
    std::string expected;
    for (std::string_view rest = c.Out; !rest.empty();)
      expected.append("@a.orb: ").append(text::NextLine(rest)).append("\n");
    EXPECT_EQ(outcome.Out + outcome.Err, expected);
    EXPECT_EQ(outcome.Status, c.Out.empty() ? 0 : 1);
    EXPECT_EQ(desk.Read("a.orb"), c.Game);
    EXPECT_EQ(desk.Listing(), "a.orb o.txt ");
  }
}

TEST(Check, ListsTheProblemsOfMoves) {
  const auto game = [](std::string_view units) { return GameFile("Spring", "moves", units); };
  ExpectProblems({
      {game("FRA A(Par)\nGER A(Mun)"), "FRA A(Par) - Bur\nGER A(Mun) - Bur", ""},
      {game("ENG A(Lon)\nENG F(NTH)"), "ENG A(Lon) - Nwy\nENG F(NTH) C A(Lon) - Nwy", ""},
      {game("FRA A(Par)"), "FRA A(Par) hold\nfoo\nFRA A(Par) - Xyz\nFRA A(Par) jump",
       "foo: syntax error: \"foo\" is not a power\n"
       "FRA A(Par) - Xyz: syntax error: the destination \"Xyz\" is not on the map\n"
       "FRA A(Par) jump: syntax error: "
       "the unit is told neither to move nor to hold, support or convoy"},
      {game("FRA A(Par)\nGER A(Mun)"), "", "FRA A(Par): unordered\nGER A(Mun): unordered"},
      {game("FRA A(Par)\nGER F(Kie)\nGER A(Mun)"),
       "FRA A(Par) - Lon\nGER F(Kie) - Mun\nGER A(Mun) S FRA A(Par) - Lon",
       "FRA A(Par) - Lon: impossible move: no army can move from Par to Lon\n"
       "GER F(Kie) - Mun: impossible move: no fleet can stand in Mun\n"
       "GER A(Mun) S FRA A(Par) - Lon: impossible support: "
       "the army in Mun cannot move to Lon, so it cannot support there"},
      {game("FRA A(Par)\nGER A(Mun)\nENG F(NTH)"),
       "FRA A(Par) - Bur\nGER A(Mun) S FRA A(Par) - Gas\nENG F(NTH) C ENG A(Lon) - Nwy",
       "GER A(Mun) S FRA A(Par) - Gas: not used: "
       "FRA A(Par) was ordered to move to Bur, not to move to Gas\n"
       "ENG F(NTH) C ENG A(Lon) - Nwy: not used: there is no ENG A(Lon)"},
      {game("FRA A(Par)"), "FRA A(Par) - Bur\nFRA A(Par) - Gas",
       "FRA A(Par) - Bur: ordered again: FRA A(Par) - Gas"},
  });
}

TEST(Check, ListsTheProblemsOfRetreats) {
  std::string standoff = GameFile("Spring", "retreats", "FRA A(Bur) <Mun\nGER A(Par)");
  standoff.replace(standoff.find(R"("Gas","",-1)"), 11, R"("Gas","",0)");
  const std::string game = GameFile("Spring", "retreats", "FRA A(Bur) <Mun\nGER A(Par)");
  ExpectProblems({
      {game, "FRA A(Bur) RETREAT Gas", ""},
      {game, "", "FRA A(Bur): unordered"},
      {game, "FRA A(Bur) RETREAT Par",
       "FRA A(Bur) RETREAT Par: occupied: GER A(Par) stands in Par"},
      {standoff, "FRA A(Bur) RETREAT Gas",
       "FRA A(Bur) RETREAT Gas: impossible (standoff): a standoff left Gas empty"},
      {game, "FRA A(Bur) DISBAND\nGER A(Par) DISBAND",
       "GER A(Par) DISBAND: no such unit: GER A(Par) is not dislodged"},
      {game, "FRA A(Bur) DISBAND\nFRA A(Bur) hold\nFRA A(Bur) RETREAT Xyz\nFRA X(Bur) hold",
       "FRA A(Bur) hold: syntax error: the unit is told neither to retreat nor to disband\n"
       "FRA A(Bur) RETREAT Xyz: syntax error: the destination \"Xyz\" is not on the map\n"
       "FRA X(Bur) hold: syntax error: \"X\" is neither A nor F"},
  });
}

TEST(Check, ListsTheProblemsOfAdjustments) {
  const std::string more =
      GameFile("Autumn", "adjustments", "FRA A(Bur)\nFRA A(Par)", "FRA Par Mar Bre");
  const std::string fewer = GameFile("Autumn", "adjustments", "FRA A(Bur)\nFRA A(Par)", "FRA Par");
  ExpectProblems({
      {more, "FRA BUILD A(Mar)", ""},
      {more, "", "FRA: not enough units: 2 after these orders, with 3 centres"},
      {fewer, "", "FRA: too many units: 2 after these orders, with 1 centres"},
      {more, "FRA BUILD A(Mar)\nFRA BUILD F(Mar)",
       "FRA BUILD A(Mar): clash with FRA BUILD F(Mar)\n"
       "FRA BUILD F(Mar): clash with FRA BUILD A(Mar)\n"
       "FRA: not enough units: 2 after these orders, with 3 centres"},
      {fewer,
       "FRA BUILD A(Par)\nFRA BUILD A(Mar)\nFRA BUILD A(Gas)\nFRA DISBAND A(Lon)\nFRA DISBAND "
       "A(Bur)",
       "FRA BUILD A(Par): centre not empty1: Par is not empty; its unit there is A(Par)\n"
       "FRA BUILD A(Mar): centre not owned: Mar is not owned by FRA\n"
       "FRA BUILD A(Gas): not a home centre: Gas is no home centre of FRA\n"
       "FRA DISBAND A(Lon): no such unit: FRA has no A(Lon)"},
  });
}

}  // namespace
}  // namespace orb::tests
