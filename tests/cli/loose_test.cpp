#include "cli/shell.h"
#include "model/files.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace orb::tests {
namespace {

using testing::HasSubstr;

constexpr std::string_view Mail =
    "Hi,\r\nOrders for France:\r\n1. Army Paris -> Burgundy\r\n2. Correction: A Par - Gas\r\n"
    "GER A Mun to Ruhr\r\nF Bre - Xyz\r\nA Xyz - Gas\r\nCheers, Tom\r\n";

std::string ThreeUnits() {
  return GameFile("Spring", "moves", "FRA A(Par)\nGER A(Mun)\nFRA F(Bre)");
}

TEST(Loose, OrdersAreFiledLikeTypedOnesAndUnclearLinesAreAskedAbout) {
  const Shell shell;
  shell.Write("a.orb", ThreeUnits());
  shell.Write("o.txt", Mail);
  const Outcome no = shell.Run("resolve --loose --orders @o.txt -o @b.orb @a.orb");
  EXPECT_EQ(no.Status, 1);
  const std::string question =
      "@a.orb: Warning: F Bre - Xyz \"Xyz\" is not on the map. Continue?\n";
  EXPECT_EQ(no.Err, question + "@a.orb: Not resolved, nothing written; --yes goes on.\n");
  EXPECT_EQ(shell.Read("b.orb"), "none");
  const Outcome yes = shell.Run("resolve --loose --yes --orders @o.txt -o @b.orb @a.orb");
  EXPECT_EQ(yes.Status, 0);
  EXPECT_EQ(yes.Out,
            "  FRA A(Par) - Gas  \n  GER A(Mun) - Ruh  \n  FRA F(Bre) unordered; hold  \n");
  EXPECT_EQ(yes.Err, question +
                         "@a.orb: Warning: A Xyz - Gas \"Xyz\" is not on the map. "
                         "Continue?\n@a.orb: Warning: FRA F(Bre) unordered. Continue?\n");
  const Outcome tried = shell.Run("resolve --loose --try --orders @o.txt @a.orb");
  EXPECT_EQ(tried.Status, 0);
  EXPECT_EQ(tried.Out, yes.Out);
  EXPECT_EQ(tried.Err,
            "@a.orb: F Bre - Xyz: \"Xyz\" is not on the map\n"
            "@a.orb: A Xyz - Gas: \"Xyz\" is not on the map\n")
      << "nothing is asked";
  const Outcome check = shell.Run("check --loose --orders @o.txt @a.orb");
  EXPECT_EQ(check.Status, 1);
  EXPECT_EQ(check.Out,
            "@a.orb: F Bre - Xyz: \"Xyz\" is not on the map\n"
            "@a.orb: A Xyz - Gas: \"Xyz\" is not on the map\n"
            "@a.orb: FRA F(Bre): unordered\n");
  EXPECT_THAT(shell.Run("check --orders @o.txt @a.orb").Out,
              HasSubstr("Orders for France:: syntax error"))
      << "read to the letter without the option";
}

TEST(Loose, MailsAreReadAsTheyWereSentOrRefusedWithASentence) {
  const Shell shell;
  shell.Write("a.orb", ThreeUnits());
  const std::string line = "From tom@example.org Mon Jan  1 10:00:00 2024\n";
  const std::string head = "From: Tom <tom@example.org>\nContent-Transfer-Encoding: ";
  shell.Write("o.mbox", line + head + "quoted-printable\n\nFRANCE:\nA Par =E2=86=\n=92 Bur\n\n" +
                            line + head + "base64\n\nQSBNdW4gLSBSdWgK\n");
  const Outcome outcome = shell.Run("resolve --loose --yes --orders @o.mbox -o @b.orb @a.orb");
  if (std::filesystem::exists(model::ProgramDirectory() / "orbmail.so")) {
    EXPECT_EQ(outcome.Out,
              "  FRA A(Par) - Bur  \n  GER A(Mun) - Ruh  \n  FRA F(Bre) unordered; hold  \n");
  } else {
    EXPECT_EQ(outcome.Status, 1);
    EXPECT_THAT(outcome.Err, HasSubstr("built without GMime"));
  }
}

TEST(Loose, PowerIsThatOfLinesThatNameNone) {
  const Shell shell;
  shell.Write("a.orb", ThreeUnits());
  shell.Write("o.txt", "A Mun - Ruh\nA Par - Bur\nBre-MAO\n");
  const std::string resolve = "resolve --yes --orders @o.txt -o @b.orb @a.orb --loose ";
  EXPECT_EQ(shell.Run(resolve + "--power FRA").Out,
            "  FRA A(Par) - Bur  \n  FRA F(Bre) - MAO  \n  GER A(Mun) unordered; hold  \n");
  EXPECT_THAT(shell.Run(resolve + "--power FRA").Err,
              HasSubstr("Warning: A Mun - Ruh doubtful: it is an order of GER."));
  EXPECT_EQ(shell.Run(resolve).Err, "") << "whose units they are";
}

TEST(Loose, DoubtfulOrdersAreFiledByConsentAlone) {
  const Shell shell;
  shell.Write("a.orb", ThreeUnits());
  shell.Write("o.txt", "A Par - Bur (tentative)\nF Bre - MAO\nGER A Mun H\n");
  const std::string loose = "--loose --power FRA --orders @o.txt ";
  const std::string doubts =
      "@a.orb: A Par - Bur (tentative): doubtful: \"(tentative)\" may change it\n"
      "@a.orb: GER A Mun H: doubtful: it is an order of GER\n";
  EXPECT_EQ(shell.Run("check " + loose + "@a.orb").Out,
            doubts + "@a.orb: FRA A(Par): unordered\n@a.orb: GER A(Mun): unordered\n");
  EXPECT_EQ(shell.Run("resolve " + loose + "-o @b.orb @a.orb").Status, 1);
  EXPECT_EQ(shell.Read("b.orb"), "none") << "abandoned at the question";
  const Outcome without = shell.Run("resolve --yes " + loose + "-o @b.orb @a.orb");
  EXPECT_EQ(without.Status, 1) << "somebody's order was not carried out";
  EXPECT_EQ(without.Out,
            "  FRA F(Bre) - MAO  \n  FRA A(Par) unordered; hold  \n"
            "  GER A(Mun) unordered; hold  \n");
  const Outcome accepted = shell.Run("resolve --accept-doubtful " + loose + "-o @b.orb @a.orb");
  EXPECT_EQ(accepted.Status, 0);
  EXPECT_EQ(accepted.Err, "");
  EXPECT_EQ(accepted.Out, "  FRA A(Par) - Bur  \n  FRA F(Bre) - MAO  \n  GER A(Mun) hold  \n");
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
