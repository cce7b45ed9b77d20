#include "cli/shell.h"
#include "model/files.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace orb::tests {
namespace {

using testing::HasSubstr;

constexpr std::string_view Mail =
    "Hi,\r\nOrders for France:\r\n1. Army Paris -> Burgundy\r\n2. A Par - Gas (better)\r\n"
    "GER A Mun to Ruhr\r\nF Bre - Xyz\r\nA Par S Bur if Mun moves\r\nCheers, Tom\r\n";

std::string ThreeUnits() {
  return GameFile("Spring", "moves", "FRA A(Par)\nGER A(Mun)\nFRA F(Bre)");
}

TEST(Loose, OrdersAreFiledLikeTypedOnesAndUnclearLinesAreAskedAbout) {
  const Shell shell;
  shell.Write("a.orb", ThreeUnits());
  shell.Write("o.txt", Mail);
  const Outcome no = shell.Run("resolve --loose --orders @o.txt -o @b.orb @a.orb");
  EXPECT_EQ(no.Status, 1);
  EXPECT_EQ(no.Err, "@a.orb: Warning: F Bre - Xyz \"Xyz\" is not on the map. Continue?\n");
  EXPECT_EQ(shell.Read("b.orb"), "none");
  const Outcome yes = shell.Run("resolve --loose --yes --orders @o.txt -o @b.orb @a.orb");
  EXPECT_EQ(yes.Status, 0);
  EXPECT_EQ(yes.Out,
            "  FRA A(Par) - Gas  \n  GER A(Mun) - Ruh  \n  FRA F(Bre) unordered; hold  \n");
  EXPECT_EQ(yes.Err, no.Err +
                         "@a.orb: Warning: A Par S Bur if Mun moves \"if\" is not understood. "
                         "Continue?\n@a.orb: Warning: FRA F(Bre) unordered. Continue?\n");
  const Outcome check = shell.Run("check --loose --orders @o.txt @a.orb");
  EXPECT_EQ(check.Status, 1);
  EXPECT_EQ(check.Out,
            "@a.orb: F Bre - Xyz: \"Xyz\" is not on the map\n"
            "@a.orb: A Par S Bur if Mun moves: \"if\" is not understood\n"
            "@a.orb: FRA F(Bre): unordered\n");
  EXPECT_THAT(shell.Run("check --orders @o.txt @a.orb").Out,
              HasSubstr("Orders for France:: syntax error"))
      << "read to the letter without the option";
}

TEST(Loose, PowerIsThatOfLinesThatNameNone) {
  const Shell shell;
  shell.Write("a.orb", ThreeUnits());
  shell.Write("o.txt", "A Mun - Ruh\nGER A Mun - Tyr\nA Par - Bur\nBre-MAO\n");
  const std::string resolve = "resolve --yes --orders @o.txt -o @b.orb @a.orb --loose ";
  EXPECT_EQ(shell.Run(resolve + "--power FRA").Out,
            "  GER A(Mun) - Tyr  \n  FRA A(Par) - Bur  \n  FRA F(Bre) - MAO  \n");
  EXPECT_THAT(shell.Run(resolve + "--power FRA").Err,
              HasSubstr("Warning: A Mun - Ruh the unit there is GER A(Mun)."));
  EXPECT_EQ(shell.Run(resolve).Err, "") << "whose units they are";
}

TEST(Loose, OrdersOfLaterStagesAreReadToo) {
  const Shell shell;
  shell.Write("o.txt", "A Bur retreats to Paris");
  shell.Write("a.orb", GameFile("Spring", "retreats", "FRA A(Bur) <Mun\nGER A(Bur)"));
  EXPECT_EQ(shell.Run("resolve --loose --orders @o.txt -o @b.orb @a.orb").Out,
            "FRA A(Bur) !  retreat Par\n");
  shell.Write("o.txt", "France: build army Paris, waive the rest");
  shell.Write("a.orb", GameFile("Autumn", "adjustments", "", "FRA Par"));
  EXPECT_EQ(shell.Run("resolve --loose --orders @o.txt -o @b.orb @a.orb").Out,
            "ADJUSTMENTS\nFRA build A(Par)  \n");
}

TEST(Loose, RepairsAreTheDataDirectorysAndMayBeMissing) {
  const Shell shell;
  for (const char* file : {"prov.dat", "conna.dat", "connf.dat", "fixnames.dat"})
    shell.Write(file, model::ReadFile(DataDirectory() / file));
  shell.Write("a.orb", GameFile("Spring", "moves", "FRA A(Par)"));
  shell.Write("o.txt", "A Lutetia - Bur");
  const auto run = [&shell] {
    const Outcome outcome = shell.Run("--data @ check --loose --orders @o.txt @a.orb");
    return outcome.Out + outcome.Err;
  };
  EXPECT_THAT(run(), HasSubstr("\"Lutetia\" is not on the map"));
  shell.Write("fixpaste.dat", "\"lutetia\",\"Par\"\r\n");
  EXPECT_EQ(run(), "");
  shell.Write("fixpaste.dat", "\"lutetia\",\"Par\"\r\n\"x\"");
  EXPECT_THAT(run(), HasSubstr("fixpaste.dat, line 2: expected the text that takes its place"));
}

}  // namespace
}  // namespace orb::tests
