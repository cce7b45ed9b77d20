#include "cli/shell.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>

namespace orb::tests {
namespace {

using testing::HasSubstr;
using testing::StartsWith;

TEST(Rules, AreChosenComparedAndTriedOut) {
  const Shell shell;
  shell.Write("a.orb", GameFile("Spring", "moves", "RUS F(Stp.s)\nGER F(Den)\n"));
  shell.Write("o.txt", "RUS F(Stp) - BOT\nGER F(Den) hold\n");
  const std::string game = shell.Read("a.orb");
  const std::string usual = "  RUS F(Stp) - BOT  \n  GER F(Den) hold  \n";
  const std::string moved = "It moved: the place was empty and no other move aimed there.";
  const std::string refused =
      "There is no such unit: RUS has no F(Stp); its unit there is F(Stp.s).";
  const Outcome tried = shell.Run("resolve --orders @o.txt --rules usual --compare --try @a.orb");
  EXPECT_EQ(tried.Out, usual);
  EXPECT_EQ(tried.Err,
            "@a.orb: 1 order came out otherwise than by ORB's own rules\n"
            "@a.orb: RUS F(Stp) - BOT: " +
                moved + " By ORB's own rules: " + refused + "\n");
  EXPECT_EQ(tried.Status, 0);
  EXPECT_EQ(shell.Listing(), "a.orb o.txt ");
  EXPECT_EQ(shell.Read("a.orb"), game);
  const Outcome orb = shell.Run("resolve --yes --orders @o.txt --compare -o @b.orb @a.orb");
  EXPECT_THAT(orb.Err, HasSubstr("@a.orb: 1 order came out otherwise than by the usual rules\n"
                                 "@a.orb: RUS F(Stp) - BOT: " +
                                 refused + " By the usual rules: "));
  EXPECT_EQ(shell.Run("resolve --orders @o.txt --rules usual --in-place @a.orb").Out, usual);
  EXPECT_THAT(shell.Read("a.orb"), HasSubstr("BOT"));
  EXPECT_EQ(shell.Run("resolve --try @a.orb").Status, 1) << "the season is finished";
  shell.Write("a.orb", game);
  EXPECT_EQ(shell.Run("check --orders @o.txt @a.orb").Err,
            "@a.orb: RUS F(Stp) - BOT: By the usual rules: it is for RUS F(Stp.s)\n");
  EXPECT_EQ(shell.Run("check --rules usual --orders @o.txt @a.orb").Status, 0);
}

TEST(WhatIf, GroupsTheChangesByPower) {
  const Shell shell;
  shell.Write("a.orb", GameFile("Spring", "moves", "FRA A(Par)\nGER A(Mun)\n"));
  shell.Write("o.txt", "FRA A(Par) - Bur\nGER A(Mun) - Bur\n");
  const Outcome outcome = shell.Run(
      std::vector<std::string>{"whatif", "--orders", "@o.txt", "@a.orb", "FRA A(Par) - Bur"});
  EXPECT_EQ(outcome.Status, 0) << outcome.Err;
  EXPECT_THAT(outcome.Out, StartsWith("FRA A(Par) - Bur: It failed: strength 1 is not more"));
  EXPECT_THAT(outcome.Out, HasSubstr("\nGER\n  GER A(Mun) hold: It moved: the place was empty"));
}

}  // namespace
}  // namespace orb::tests
