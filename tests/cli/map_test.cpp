#include "cli/shell.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>
#include <utility>
#include <vector>

namespace orb::tests {
namespace {

using testing::StartsWith;

TEST(Map, IsDrawnInTheFormatOfItsExtension) {
  const Shell shell;
  shell.Write("a.orb", GameFile("Spring", "moves", "FRA A(Par)\nGER A(Mun)\n"));
  const std::vector<std::pair<std::string, std::string>> cases{
      {"m.png", "\x89PNG"}, {"m.BMP", "BM"}, {"m.svg", "<?xml"}, {"m.pdf", "%PDF"}};
  for (const auto& [name, start] : cases) {
    const Outcome outcome =
        shell.Run("map --mode grey --centre-count --borders --centre-owners --width 400 -o @" +
                  name + " @a.orb");
    EXPECT_EQ(outcome.Status, 0) << outcome.Err;
    EXPECT_EQ(outcome.Err + outcome.Out, "");
    EXPECT_THAT(shell.Read(name), StartsWith(start));
  }
  // A bitmap has its width in bytes 18 and 19.
  EXPECT_EQ(shell.Read("m.BMP").substr(18, 2), "\x90\x01");
  EXPECT_EQ(shell.Run("map --width 1 -o @m.bmp @a.orb").Status, 0);
  shell.Write("b.orb", GameFile("Spring", "finished", "ENG F(NTH)"));
  const std::string animate = "map --animate --tint-by-owner --letters --width 100 -o @m.gif ";
  for (const char* games : {"@a.orb", "@b.orb", "@b.orb @a.orb"}) {
    EXPECT_EQ(shell.Run(animate + games).Err, "");
    EXPECT_THAT(shell.Read("m.gif"), StartsWith("GIF89a"));
  }
}

TEST(Map, ShowsTheOrdersOfAFile) {
  const Shell shell;
  shell.Write("a.orb", GameFile("Spring", "moves", "FRA A(Par)\nGER A(Mun)\n"));
  shell.Write("o.txt", "ENG F(Lon) - NTH\nnonsense\n");
  shell.Write("none.txt", "\n \n");
  shell.MakeDirectory("orders");
  const auto drawn = [&shell](const std::string& options) {
    const Outcome outcome = shell.Run("map --width 300 -o @m.bmp " + options + "@a.orb");
    EXPECT_EQ(outcome.Err + outcome.Out, "");
    return shell.Read("m.bmp");
  };
  const std::string plain = drawn("");
  EXPECT_NE(drawn("--orders @o.txt "), plain);
  EXPECT_EQ(drawn("--orders @none.txt "), plain);
  EXPECT_EQ(drawn("--orders @orders "), plain) << "no file in the directory";
  EXPECT_EQ(shell.Run("map --orders @gone.txt -o @n.bmp @a.orb").Status, 1);
  shell.Write("f.orb", GameFile("Spring", "finished", "ENG F(Lon)"));
  EXPECT_EQ(shell.Run("map --orders @o.txt -o @n.bmp @f.orb").Err,
            "@f.orb: There are no orders to draw in the stage \"finished\".\n");
  EXPECT_EQ(shell.Read("n.bmp"), "none");
}

}  // namespace
}  // namespace orb::tests
