#include "cli/orders_source.h"
#include "cli/run.h"
#include "cli/shell.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <sstream>
#include <sys/stat.h>
#include <thread>

namespace orb::tests {
namespace {

using testing::EndsWith;
using testing::HasSubstr;
using testing::Not;
using testing::StartsWith;

constexpr std::string_view NotResolved = "@a.orb: Not resolved, nothing written; --yes goes on.\n";

constexpr std::string_view TwoUnits = "FRA A(Par)\nGER A(Mun)\n";

std::string TwoUnitGame() {
  return GameFile("Spring", "moves", TwoUnits);
}

TEST(OrderLines, EndInLfOrCrLfAndBlankOnesAreSkipped) {
  using Lines = std::vector<std::string>;
  const std::vector<std::pair<std::string_view, Lines>> cases{
      {"", {}},
      {"\n\r\n \t\n\t \r\n", {}},
      {"a\nb\r\nc", {"a", "b", "c"}},
      {"  a  \n\tb\t\r\n", {"  a  ", "\tb\t"}},
      {"a\rb\r\r\n", {"a\rb\r"}},
      {"a\r", {"a\r"}},
      {"a\n\na\n", {"a", "a"}},
      {"\xe9\"\x01\n", {"\xe9\"\x01"}},
  };
  for (const auto& [text, lines] : cases)
    EXPECT_EQ(cli::OrderLines(text), lines) << text;
}

TEST(Resolve, PrintsTheReportAsItStandsWithItsBlanks) {
  const Shell shell;
  shell.Write("a.orb", TwoUnitGame());
  shell.Write("o.txt", "FRA A(Par) - Bur\r\n \t\r\n  GER A(Mun) - Bur \nGER A(M\xfcn) hold");
  const Outcome outcome = shell.Run("resolve --yes --orders @o.txt -o @b.orb @a.orb");
  EXPECT_EQ(outcome.Status, 0);
  EXPECT_EQ(outcome.Out,
            "[ FRA A(Par) - Bur ]  \n"
            "[ GER A(Mun) - Bur ]  \n"
            "[ GER A(M\xfcn) hold ]  syntax error\n");
  EXPECT_EQ(outcome.Err, "@a.orb: Warning: GER A(M\xfcn) hold syntax error. Continue?\n");
  EXPECT_THAT(shell.Read("b.orb"), HasSubstr(",1901,\"finished\"\r\n"));
  EXPECT_EQ(shell.Read("a.orb"), TwoUnitGame());
}

TEST(Resolve, TakesTheStoredOrdersUnlessThereIsAnOrdersFile) {
  const Shell shell;
  std::string game = TwoUnitGame();
  game.replace(game.find("\r\n0\r\n0\r\n"), 8,
               "\r\n2\r\n\"FRA A(Par) - Pic\"\r\n\"GER A(Mun) - Boh\"\r\n0\r\n");
  shell.Write("a.orb", game);
  shell.Write("o.txt", "FRA A(Par) - Gas\nGER A(Mun) hold\n");
  shell.MakeDirectory("orders");
  EXPECT_EQ(shell.Run("resolve -o @b.orb @a.orb").Out,
            "  FRA A(Par) - Pic  \n  GER A(Mun) - Boh  \n");
  EXPECT_EQ(shell.Run("resolve --orders @o.txt -o @b.orb @a.orb").Out,
            "  FRA A(Par) - Gas  \n  GER A(Mun) hold  \n");
  EXPECT_EQ(shell.Run("resolve --yes --orders @orders -o @b.orb @a.orb").Out,
            "  FRA A(Par) unordered; hold  \n  GER A(Mun) unordered; hold  \n");
  const Outcome missing = shell.Run("resolve --yes --orders @none.txt -o @c.orb @a.orb");
  EXPECT_EQ(missing.Status, 1);
  EXPECT_THAT(missing.Err, StartsWith("@a.orb: Cannot read @none.txt: "));
  EXPECT_EQ(shell.Read("c.orb"), "none");
}

TEST(Resolve, DirectoriesHoldAFileForEachGame) {
  const Shell shell;
  for (const char* name : {"in", "orders", "out", "reports", "why"})
    shell.MakeDirectory(name);
  shell.Write("in/x.y.dat", TwoUnitGame());
  shell.Write("in/z", GameFile("Autumn", "retreats", "FRA A(Bur) <Mun\nGER A(Par)"));
  shell.Write("orders/x.y.txt", "FRA A(Par) - Bur\nGER A(Mun) hold\n");
  shell.Write("orders/z.txt", "FRA A(Bur) RETREAT Gas\n");
  const Outcome outcome = shell.Run(
      "resolve --orders @orders --report @reports --reasons @why -o @out @in/x.y.dat @in/z");
  EXPECT_EQ(outcome.Status, 0);
  EXPECT_EQ(outcome.Out + outcome.Err, "");
  EXPECT_EQ(shell.Listing(),
            "in in/x.y.dat in/z orders orders/x.y.txt orders/z.txt out out/x.y.orb out/z.orb "
            "reports reports/x.y.txt reports/z.txt why why/x.y.txt why/z.txt ");
  EXPECT_EQ(shell.Read("reports/x.y.txt"), "  FRA A(Par) - Bur  \n  GER A(Mun) hold  \n");
  EXPECT_EQ(shell.Read("reports/z.txt"), "FRA A(Bur) !  retreat Gas\n");
  EXPECT_EQ(shell.Read("why/z.txt"), "FRA A(Bur) !  retreat Gas: It retreated: Gas was free.\n");
  const std::string reasons = shell.Read("why/x.y.txt");
  EXPECT_EQ(std::count(reasons.begin(), reasons.end(), '\n'), 2);
}

TEST(Resolve, QuestionsAreAnsweredNoUnlessToldYes) {
  const auto question = [](const std::string& about) {
    return "@a.orb: Warning: " + about + " Continue?\n";
  };
  struct Case {
    std::string Game, Orders, NoErr, YesErr;  ///< YesErr: what a Yes adds
    int YesStatus;
  };
  const std::vector<Case> cases{
      {TwoUnitGame(), "FRA A(Par) - Lon\nGER A(Mun) hold",
       question("FRA A(Par) - Lon impossible move."), "", 0},
      {GameFile("Spring", "retreats", "FRA A(Bur) <Mun"), "", question("FRA A(Bur) unordered."), "",
       0},
      {GameFile("Autumn", "adjustments", "FRA A(Bur)\nFRA A(Par)", "FRA Par"), "",
       "@a.orb: Error: FRA too many units.\n", "", 1},
      {GameFile("Autumn", "adjustments", "", "FRA Par Mar"), "FRA BUILD A(Par)\nFRA X",
       question("FRA X syntax error."),
       question("FRA X no such unit.") + question("FRA not enough units."), 0},
  };
  for (const Case& c : cases) {
    const Shell shell;
    shell.Write("a.orb", c.Game);
    shell.Write("o.txt", c.Orders);
    const Outcome no = shell.Run("resolve --orders @o.txt --report @r.txt -o @b.orb @a.orb");
    EXPECT_EQ(no.Status, 1);
    EXPECT_EQ(no.Out + no.Err,
              c.NoErr + (c.YesStatus == 0 ? std::string(NotResolved) : std::string()));
    EXPECT_EQ(shell.Listing(), "a.orb o.txt ");
    const Outcome yes = shell.Run("resolve --yes --orders @o.txt --in-place @a.orb");
    EXPECT_EQ(yes.Status, c.YesStatus) << c.Orders;
    EXPECT_EQ(yes.Err, c.NoErr + c.YesErr);
    EXPECT_EQ(shell.Read("a.orb") == c.Game, c.YesStatus != 0) << c.Orders;
  }
}

TEST(Games, ThatCannotBeReadAreRefusedAndTheOthersDone) {
  const Shell shell;
  const std::string good = TwoUnitGame();
  std::string nowhere = good;
  nowhere.replace(nowhere.find("\"Cly\""), 5, "\"Atl\"");
  shell.MakeDirectory("out");
  shell.MakeDirectory("folder.orb");
  for (const char* name : {"first.orb", "last.orb"})
    shell.Write(name, good);
  shell.Write("cut.orb", good.substr(0, good.size() / 2));
  shell.Write("nowhere.orb", nowhere);
  const Outcome outcome = shell.Run(
      "resolve --yes -o @out @first.orb @cut.orb @nowhere.orb @missing.orb @folder.orb @last.orb");
  EXPECT_EQ(outcome.Status, 1);
  EXPECT_EQ(shell.Listing(),
            "cut.orb first.orb folder.orb last.orb nowhere.orb out out/first.orb out/last.orb ");
  for (const std::string name : {"cut", "nowhere", "missing", "folder"}) {
    EXPECT_THAT(outcome.Err, HasSubstr("@" + name + ".orb: ")) << name;
    EXPECT_THAT(outcome.Out, Not(HasSubstr(name)));
  }
  EXPECT_THAT(outcome.Err, HasSubstr("\n@nowhere.orb: Unknown province: Atl\n"));
  EXPECT_THAT(outcome.Out, HasSubstr("== @last.orb\n"));
}

TEST(Games, AreRefusedInLinesOfOneEncoding) {
  const auto broken = [](const std::string& subject, const std::string& inText) {
    return "@" + subject + ".orb: @" + inText + R"(, line 2: expected a year (a whole number), )";
  };
  const std::vector<std::pair<std::string, std::string>> cases{
      {"a", broken("a", "a.orb") + "found \"M\xfc\".\n"},
      {"\xc3\xbc", broken("\xc3\xbc", "\xc3\xbc.orb") + "found \"M\xc3\xbc\".\n"},
      {"\xc5\x81", broken("\xc5\x81", "?.orb") + "found \"M\xc3\xbc\".\n"},
      {"\xfc", broken("\xfc", "\xfc.orb") + "found \"M\xfc\".\n"},
      {"good", "@good.orb: Cannot read @\xfc \x80 ?.txt: No such file or directory.\n"},
  };
  const Shell shell;
  shell.Write("good.orb", TwoUnitGame());
  for (const auto& [name, line] : cases) {
    if (name != "good") shell.Write(name + ".orb", "\"ORB v5.5\"\nT,Spring,M\xfc,moves\n");
    EXPECT_EQ(shell
                  .Run({"resolve", "--in-place", "--orders", "@\xc3\xbc \xe2\x82\xac \xc5\x81.txt",
                        "@" + name + ".orb"})
                  .Err,
              line);
  }
}

TEST(Games, NamesAreNoCommandsForATerminal) {
  EXPECT_THAT(Shell().Run("show @a\x1b[2J.orb").Err,
              testing::StartsWith("@a?[2J.orb: Cannot read @a?[2J.orb"));
}

TEST(Games, AreReplacedWholeOrNotAtAll) {
  const Shell shell;
  shell.Write("a.orb", TwoUnitGame());
  shell.MakeDirectory("folder");
  for (const std::string_view line :
       {"resolve --yes -o @none/b.orb @a.orb",
        "resolve --yes --in-place --report @none/r.txt @a.orb",
        "resolve --yes --in-place --reasons @none/r.txt @a.orb", "new -o @none/b.orb",
        "resolve --yes -o @none/b.orb --report @r.txt @none.orb", "map -o @none/b.png @a.orb"}) {
    const Outcome outcome = shell.Run(line);
    EXPECT_EQ(outcome.Status, 1) << line;
    EXPECT_EQ(outcome.Out, "") << line;
    EXPECT_THAT(outcome.Err, HasSubstr("none")) << line;
    EXPECT_EQ(shell.Listing(), "a.orb folder ") << line;
    EXPECT_EQ(shell.Read("a.orb"), TwoUnitGame()) << line;
  }
  std::string quoted = TwoUnitGame();
  quoted.replace(quoted.find(R"("FRA","")"), 8, R"(FRA,Jo "J")");
  shell.Write("a.orb", quoted);
  EXPECT_EQ(shell.Run("resolve --yes --in-place --report @r.txt @a.orb").Status, 1);
  EXPECT_EQ(shell.Read("r.txt"), "none") << "the report of a game that cannot be stored";
}

TEST(Resolve, LeavesAGameWhoseReportCannotBePrinted) {
  const Shell shell;
  shell.Write("a.orb", TwoUnitGame());
  std::ofstream full("/dev/full");
  std::ostringstream err;
  const std::vector<std::string> line{"resolve", "--yes", "--in-place",
                                      (shell.Directory().Path() / "a.orb").string()};
  EXPECT_EQ(cli::Run(line, full, err), 1);
  EXPECT_THAT(err.str(), HasSubstr("a.orb: The standard output could not be written."));
  EXPECT_EQ(shell.Read("a.orb"), TwoUnitGame());
  EXPECT_EQ(shell.Listing(), "a.orb ") << "nothing is left next to it";
}

TEST(Resolve, LeavesAGameThatSomebodyChangesMeanwhile) {
  for (const char* output : {"--in-place @a.orb", "-o @./a.orb @a.orb"}) {
    const Shell shell;
    shell.Write("a.orb", TwoUnitGame());
    const std::filesystem::path orders = shell.Directory().Path() / "orders";
    ASSERT_EQ(::mkfifo(orders.c_str(), 0600), 0);
    std::thread other([&] {
      // Opens when orbctl reads its other end, so that it has read the game.
      std::ofstream pipe(orders);
      shell.Write("a.orb", "somebody else's");
      pipe << "FRA A(Par) - Bur\n";
    });
    const Outcome outcome = shell.Run(std::string("resolve --yes --orders @orders ") + output);
    other.join();
    EXPECT_EQ(outcome.Status, 1);
    EXPECT_THAT(outcome.Err, EndsWith("a.orb was changed by another program since it was read: it "
                                      "is left as it is.\n"));
    EXPECT_EQ(shell.Read("a.orb"), "somebody else's");
    EXPECT_EQ(shell.Listing(), "a.orb orders ");
  }
}

TEST(Resolve, WritesReportAndReasonsToDevicesToo) {
  const Shell shell;
  shell.Write("a.orb", TwoUnitGame());
  const std::string report = shell.Run("resolve --yes --reasons @why.txt -o @b.orb @a.orb").Out;
  const std::string reasons = shell.Read("why.txt");
  const std::vector<std::pair<std::string, std::string>> cases{
      {"--reasons /dev/stdout", report + reasons},
      {"--report /dev/stdout --reasons /dev/stdout", report + reasons},
      {"--report /dev/null --reasons /dev/null", ""},
  };
  for (const auto& [options, out] : cases) {
    const Outcome outcome = shell.Run("resolve --yes " + options + " -o @b.orb @a.orb");
    EXPECT_EQ(outcome.Status, 0) << outcome.Err;
    EXPECT_EQ(outcome.Out, out) << options;
  }
  const Outcome full = shell.Run("resolve --yes --in-place --report /dev/full @a.orb");
  EXPECT_EQ(full.Status, 1);
  EXPECT_THAT(full.Err, EndsWith("Cannot write /dev/full.\n"));
  EXPECT_EQ(shell.Read("a.orb"), TwoUnitGame());
}

TEST(Resolve, OrdersThatCannotBeReachedAreNotTakenForMissing) {
  const Shell shell;
  shell.Write("a.orb", TwoUnitGame());
  shell.MakeDirectory("orders");
  std::filesystem::create_symlink("gone.txt", shell.Directory().Path() / "orders/a.txt");
  const Outcome outcome = shell.Run("resolve --yes --in-place --orders @orders @a.orb");
  EXPECT_EQ(outcome.Status, 1);
  EXPECT_THAT(outcome.Err, StartsWith("@a.orb: Cannot read @orders/a.txt: "));
  EXPECT_EQ(shell.Read("a.orb"), TwoUnitGame());
}

TEST(Games, NamedAgainBehindOutputAreReplacedInPlace) {
  const Shell shell;
  shell.Write("a.orb", TwoUnitGame());
  const Outcome byName = shell.Run("resolve --yes -o @a.orb @a.orb");
  EXPECT_EQ(byName.Status, 0) << byName.Err;
  EXPECT_THAT(shell.Read("a.orb"), HasSubstr("\"finished\""));
  EXPECT_EQ(shell.Run({"undo", "-o", "@", "@a.orb"}).Status, 0);
  EXPECT_THAT(shell.Read("a.orb"), HasSubstr("\"moves\""));
  EXPECT_EQ(shell.Listing(), "a.orb ");
  std::filesystem::create_symlink("a.orb", shell.Directory().Path() / "link.orb");
  EXPECT_EQ(shell.Run("resolve --yes --in-place @link.orb").Status, 0);
  EXPECT_THAT(shell.Read("a.orb"), HasSubstr("\"finished\""));
  EXPECT_TRUE(std::filesystem::is_symlink(shell.Directory().Path() / "link.orb"));
  EXPECT_EQ(shell.Run("undo --in-place @link.orb @a.orb").Status, 2);
}

TEST(Seasons, CommandsThatRefuseLeaveTheGame) {
  const std::vector<std::vector<std::string>> cases{
      {"next --in-place", "Autumn", "retreats",
       "The season is not finished: the game is in the stage \"retreats\"."},
      {"undo --in-place", "Spring", "retreats",
       "2 units do not have original locations recorded. Continue?\n"
       "@a.orb: Not undone, nothing written; --yes goes on."},
      {"check", "Spring", "finished", "There are no orders to check in the stage \"finished\"."},
  };
  for (const auto& c : cases) {
    const Shell shell;
    const std::string game = GameFile(c[1], c[2], TwoUnits);
    shell.Write("a.orb", game);
    const Outcome outcome = shell.Run(c[0] + " @a.orb");
    EXPECT_EQ(outcome.Status, 1) << c[0];
    EXPECT_EQ(outcome.Out + outcome.Err, "@a.orb: " + c[3] + "\n");
    EXPECT_EQ(shell.Read("a.orb"), game);
  }
}

TEST(Check, PrintsEachProblemAndWritesNothing) {
  const Shell shell;
  shell.Write("a.orb", TwoUnitGame());
  shell.Write("o.txt", "FRA A(Par) - Bur\n ENG \nFRA A(Par) - Lon\n");
  const Outcome outcome = shell.Run("check --orders @o.txt @a.orb");
  EXPECT_EQ(outcome.Status, 1);
  // Not a problem, but worth knowing while it can be mended.
  EXPECT_EQ(outcome.Err,
            "@a.orb: FRA A(Par) - Bur: By the usual rules: Its unit was to hold: it and "
            "\"FRA A(Par) - Lon\" differ.\n");
  EXPECT_EQ(outcome.Out,
            "@a.orb: FRA A(Par) - Bur: ordered again: FRA A(Par) - Lon\n"
            "@a.orb: ENG: syntax error: the unit is missing\n"
            "@a.orb: FRA A(Par) - Lon: impossible move: no army can move from Par to Lon\n"
            "@a.orb: GER A(Mun): unordered\n");
  shell.Write("o.txt", "FRA A(Par) - Bur\nGER A(Mun) hold\n");
  EXPECT_EQ(shell.Run("check --orders @o.txt @a.orb").Status, 0);
  EXPECT_EQ(shell.Read("a.orb"), TwoUnitGame());
  EXPECT_EQ(shell.Listing(), "a.orb o.txt ");
}

TEST(Progress, IsShownForLongRunsOnATerminalAndClearedAtTheEnd) {
  const Shell shell;
  shell.MakeDirectory("out");
  std::vector<std::string> arguments{"resolve", "--report", "@out", "-o", "@out"};
  for (int i = 0; i < 60; ++i) {
    const std::string name = std::to_string(i).append(".orb");
    shell.Write(name, GameFile("Spring", "moves", i == 30 ? "FRA A(Par)" : ""));
    arguments.push_back(std::string("@").append(name));
  }
  const Outcome shown = shell.Run(arguments, {.Err = true});
  EXPECT_THAT(shown.Err, StartsWith("\r1 of 60 games\r2 of 60"));
  EXPECT_THAT(shown.Err, HasSubstr("\r              \r@30.orb: Warning: "));
  EXPECT_THAT(shown.Err, EndsWith("\r60 of 60 games\r              \r"));
  EXPECT_EQ(shell.Run(arguments).Err,
            "@30.orb: Warning: FRA A(Par) unordered. Continue?\n"
            "@30.orb: Not resolved, nothing written; --yes goes on.\n");
}

TEST(Games, ManyShownHaveHeadings) {
  const Shell shell;
  shell.Write("a.orb", TwoUnitGame());
  const Outcome one = shell.Run("show @a.orb");
  const Outcome two = shell.Run("show @a.orb @none.orb @a.orb");
  EXPECT_EQ(one.Status * 10 + two.Status, 1);
  EXPECT_EQ(two.Out, "== @a.orb\n" + one.Out + "== @a.orb\n" + one.Out);
}

}  // namespace
}  // namespace orb::tests
