#include "cli/desk.h"
#include "model/text.h"

#include <gtest/gtest.h>

namespace orb::tests {
namespace {

struct Case {
  std::string_view Name;
  std::string Game;
  std::string_view Orders;
  std::string_view Out;
};

void ExpectProblems(const std::vector<Case>& cases) {
  for (const Case& c : cases) {
    const Desk desk;
    desk.Write("a.orb", c.Game);
    desk.Write("o.txt", c.Orders);
    const Outcome outcome = desk.Run("check --orders @o.txt @a.orb");
    std::string expected;
    for (std::string_view rest = c.Out; !rest.empty();)
      expected.append("@a.orb: ").append(model::NextLine(rest)).append("\n");
    EXPECT_EQ(outcome.Out, expected) << c.Name;
    EXPECT_EQ(outcome.Err, "") << c.Name;
    EXPECT_EQ(outcome.Status, c.Out.empty() ? 0 : 1) << c.Name;
    EXPECT_EQ(desk.Read("a.orb"), c.Game) << c.Name;
    EXPECT_EQ(desk.Listing(), "a.orb o.txt ") << c.Name;
  }
}

TEST(Check, ListsTheProblemsOfMoves) {
  const auto game = [](std::string_view units) { return GameFile("Spring", "moves", units); };
  ExpectProblems({
      {"bounces are no problems", game("FRA A(Par)\nGER A(Mun)"),
       "FRA A(Par) - Bur\nGER A(Mun) - Bur", ""},
      {"a good convoy", game("ENG A(Lon)\nENG F(NTH)"),
       "ENG A(Lon) - Nwy\nENG F(NTH) C A(Lon) - Nwy", ""},
      {"syntax", game("FRA A(Par)"), "FRA A(Par) hold\nfoo\nFRA A(Par) - Xyz\nFRA A(Par) jump",
       "foo: syntax error: \"foo\" is not a power\n"
       "FRA A(Par) - Xyz: syntax error: the destination \"Xyz\" is not on the map\n"
       "FRA A(Par) jump: syntax error: "
       "the unit is told neither to move nor to hold, support or convoy"},
      {"no such unit", game("FRA A(Par)"), "FRA A(Par) hold\n  FRA F(Par) hold",
       "FRA F(Par) hold: no such unit: FRA has no F(Par); its unit there is A(Par)"},
      {"unordered", game("FRA A(Par)\nGER A(Mun)"), "",
       "FRA A(Par): unordered\nGER A(Mun): unordered"},
      {"impossible", game("FRA A(Par)\nGER F(Kie)\nGER A(Mun)"),
       "FRA A(Par) - Lon\nGER F(Kie) - Mun\nGER A(Mun) S FRA A(Par) - Lon",
       "FRA A(Par) - Lon: impossible move: no army can move from Par to Lon\n"
       "GER F(Kie) - Mun: impossible move: no fleet can stand in Mun\n"
       "GER A(Mun) S FRA A(Par) - Lon: impossible support: "
       "the army in Mun cannot move to Lon, so it cannot support there"},
      {"not used", game("FRA A(Par)\nGER A(Mun)\nENG F(NTH)"),
       "FRA A(Par) - Bur\nGER A(Mun) S FRA A(Par) - Gas\nENG F(NTH) C ENG A(Lon) - Nwy",
       "GER A(Mun) S FRA A(Par) - Gas: not used: "
       "FRA A(Par) was ordered to move to Bur, not to move to Gas\n"
       "ENG F(NTH) C ENG A(Lon) - Nwy: not used: there is no ENG A(Lon)"},
      {"two orders for a unit", game("FRA A(Par)"), "FRA A(Par) - Bur\nFRA A(Par) - Gas",
       "FRA A(Par) - Bur: ordered again: FRA A(Par) - Gas"},
  });
}

TEST(Check, ListsTheProblemsOfRetreats) {
  std::string standoff = GameFile("Spring", "retreats", "FRA A(Bur) <Mun\nGER A(Par)");
  standoff.replace(standoff.find(R"("Gas","",-1)"), 11, R"("Gas","",0)");
  const std::string game = GameFile("Spring", "retreats", "FRA A(Bur) <Mun\nGER A(Par)");
  ExpectProblems({
      {"good", game, "FRA A(Bur) RETREAT Gas", ""},
      {"disband", game, "FRA A(Bur) disband", ""},
      {"unordered", game, "", "FRA A(Bur): unordered"},
      {"impossible", game, "FRA A(Bur) RETREAT Lon",
       "FRA A(Bur) RETREAT Lon: impossible move: no army can move from Bur to Lon"},
      {"occupied", game, "FRA A(Bur) RETREAT Par",
       "FRA A(Bur) RETREAT Par: occupied: GER A(Par) stands in Par"},
      {"standoff", standoff, "FRA A(Bur) RETREAT Gas",
       "FRA A(Bur) RETREAT Gas: impossible (standoff): a standoff left Gas empty"},
      {"back", game, "FRA A(Bur) RETREAT Mun",
       "FRA A(Bur) RETREAT Mun: impossible: the attack that dislodged it came from Mun"},
      {"not dislodged", game, "FRA A(Bur) DISBAND\nGER A(Par) DISBAND",
       "GER A(Par) DISBAND: no such unit: GER A(Par) is not dislodged"},
      {"syntax", game,
       "FRA A(Bur) DISBAND\nFRA A(Bur) hold\nFRA A(Bur) RETREAT Xyz\nFRA X(Bur) hold",
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
      {"good", more, "FRA BUILD A(Mar)", ""},
      {"too few", more, "", "FRA: not enough units: 2 after these orders, with 3 centres"},
      {"too many", fewer, "", "FRA: too many units: 2 after these orders, with 1 centres"},
      {"clash", more, "FRA BUILD A(Mar)\nFRA BUILD F(Mar)",
       "FRA BUILD A(Mar): clash with FRA BUILD F(Mar)\n"
       "FRA BUILD F(Mar): clash with FRA BUILD A(Mar)\n"
       "FRA: not enough units: 2 after these orders, with 3 centres"},
      {"each fault", fewer,
       "FRA BUILD A(Par)\nFRA BUILD A(Mar)\nFRA BUILD A(Gas)\nFRA DISBAND A(Lon)\nFRA DISBAND "
       "A(Bur)",
       "FRA BUILD A(Par): centre not empty1: Par is not empty; its unit there is A(Par)\n"
       "FRA BUILD A(Mar): centre not owned: Mar is not owned by FRA\n"
       "FRA BUILD A(Gas): not a home centre: Gas is no home centre of FRA\n"
       "FRA DISBAND A(Lon): no such unit: FRA has no A(Lon)"},
      {"syntax", fewer, "FRA DISBAND A(Bur)\nFRA WAIVE\nFRA BUILD A(Xyz)\nXXX BUILD A(Par)",
       "FRA WAIVE: syntax error: the power is told neither to build nor to disband\n"
       "FRA BUILD A(Xyz): syntax error: the unit's location \"Xyz\" is not on the map\n"
       "XXX BUILD A(Par): syntax error: \"XXX\" is not a power"},
  });
}

}  // namespace
}  // namespace orb::tests
