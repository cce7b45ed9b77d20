#include "cli/shell.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <fcntl.h>
#include <string>
#include <unistd.h>
#include <utility>
#include <vector>

namespace orb::tests {
namespace {

using testing::HasSubstr;
using testing::StartsWith;

constexpr std::string_view TwoMoves = "FRA A(Par) - Bur\nGER A(Mun) - Bur\n";
constexpr std::string_view TwoReports = "[ FRA A(Par) - Bur ]  \n[ GER A(Mun) - Bur ]  \n";

/// A shell with the game "a.orb", whose title is not ASCII, and orders for its two units.
class Streams : public testing::Test {
 protected:
  Streams() {
    shell_.Write("a.orb", Game("M\xfcller"));
    shell_.Write("o.txt", TwoMoves);
  }

  static std::string Game(const std::string& title) {
    std::string game = GameFile("Spring", "moves", "FRA A(Par)\nGER A(Mun)\n");
    const std::size_t start = game.find('\n') + 1;
    return game.replace(start, game.find(',', start) - start, "\"" + title + "\"");
  }

  /// Runs a line whose standard input is this text.
  Outcome Piped(const std::string& input, std::string_view line) {
    shell_.Write("piped", input);
    const int before = ::dup(STDIN_FILENO);
    const int file = ::open((shell_.Directory().Path() / "piped").c_str(), O_RDONLY);
    ::dup2(file, STDIN_FILENO);
    Outcome outcome = shell_.Run(line);
    ::dup2(before, STDIN_FILENO);
    ::close(file);
    ::close(before);
    return outcome;
  }

  Shell shell_;
};

TEST_F(Streams, StandWhereverAFileIsNamed) {
  const std::string game = shell_.Read("a.orb");
  const std::string orders(TwoMoves);
  ASSERT_EQ(shell_.Run("resolve --orders @o.txt --reasons @w.txt -o @b.orb @a.orb").Status, 0);
  ASSERT_EQ(shell_.Run("next -o @c.orb @b.orb").Status, 0);
  ASSERT_EQ(shell_.Run("map --width 200 -o @m.png @a.orb").Status, 0);
  const std::string why = shell_.Read("w.txt");
  const std::string report(TwoReports);
  struct Case {
    std::string Input, Line, Out;
  };
  const std::vector<Case> cases{
      {orders, "resolve --orders - -o @d.orb @a.orb", report},
      {orders, "resolve --orders - --reasons - -o @d.orb @a.orb", report + why},
      {game, "resolve --orders @o.txt --report @d.txt -o - -", shell_.Read("b.orb")},
      {shell_.Read("b.orb"), "next -o - -", shell_.Read("c.orb")},
      {shell_.Read("b.orb"), "undo -o - -", shell_.Run("undo -o - @b.orb").Out},
      {game, "show -", shell_.Run("show @a.orb").Out},
      {orders, "whatif --orders - @a.orb FRA", ""},
      {game, "map --width 200 --format png -o - -", shell_.Read("m.png")},
      {"", "map --width 200 --format png -o @m.txt @a.orb", ""},
  };
  for (const auto& [input, line, out] : cases) {
    const Outcome outcome = Piped(input, line);
    EXPECT_EQ(outcome.Status, line.starts_with("whatif") ? 1 : 0) << line << outcome.Err;
    EXPECT_EQ(outcome.Out, out) << line;
  }
  EXPECT_EQ(shell_.Read("m.txt"), shell_.Read("m.png"));
  EXPECT_EQ(shell_.Read("d.txt"), report);
  EXPECT_EQ(Piped("FRA", "show -").Err.substr(0, 12), "/dev/stdin: ");
}

TEST_F(Streams, ReasonsStandBehindTheirLinesUnderTheHeading) {
  shell_.MakeDirectory("out");
  const Outcome outcome =
      shell_.Run("resolve --yes --report @out --reasons - -o @out @a.orb @a.orb @gone.orb");
  EXPECT_EQ(outcome.Status, 2) << "written twice";
  shell_.Write("b.orb", shell_.Read("a.orb"));
  EXPECT_EQ(shell_.Run("resolve --yes --report @out --reasons - -o @out @a.orb @b.orb").Out,
            "== @a.orb\n  FRA A(Par) unordered; hold: It had no order, so it held.\n"
            "  GER A(Mun) unordered; hold: It had no order, so it held.\n"
            "== @b.orb\n  FRA A(Par) unordered; hold: It had no order, so it held.\n"
            "  GER A(Mun) unordered; hold: It had no order, so it held.\n");
}

TEST_F(Streams, GamesOfAListAreDoneLikeThoseOfTheLine) {
  shell_.Write("b c.orb", shell_.Read("a.orb"));
  const std::string path = (shell_.Directory().Path() / "").string();
  const std::string both = shell_.Run(std::vector<std::string>{"show", "@a.orb", "@b c.orb"}).Out;
  const std::string lines = path + "a.orb\n\n" + path + "b c.orb";
  const std::string nuls = path + "a.orb" + '\0' + path + "b c.orb" + '\0';
  EXPECT_EQ(Piped(lines, "show --files-from -").Out, both);
  EXPECT_EQ(Piped(nuls, "show --files-from -").Out, both);
  EXPECT_EQ(Piped(path + "b c.orb\n", "show --files-from - @a.orb").Out, both);
  EXPECT_THAT(Piped(path + "a.orb", "show --files-from -").Out, StartsWith("== @a.orb\n"));
  EXPECT_EQ(Piped("", "next --in-place --files-from -").Status, 0) << "a list of none";
  EXPECT_EQ(shell_.Run("show --files-from @gone").Err.substr(0, 28),
            "orbctl: Cannot read @gone: N");
}

TEST_F(Streams, NothingIsWrittenOverWithNoClobber) {
  const std::string files = shell_.Listing();
  ASSERT_EQ(shell_.Run("resolve --orders @o.txt --report @r.txt -o @b.orb @a.orb").Status, 0);
  const std::string resolved = shell_.Read("b.orb");
  const std::vector<std::pair<std::string, std::string>> cases{
      {"resolve --yes --no-clobber --report @s.txt -o @b.orb @a.orb", "b.orb"},
      {"resolve --yes --no-clobber --report @r.txt -o @d.orb @a.orb", "r.txt"},
      {"resolve --yes --no-clobber --report @s.txt --reasons @r.txt -o @d.orb @a.orb", "r.txt"},
      {"next --no-clobber -o @a.orb @b.orb", "a.orb"},
      {"new --no-clobber -o @b.orb", "b.orb"},
      {"map --no-clobber --format svg -o @b.orb @a.orb", "b.orb"},
  };
  for (const auto& [line, kept] : cases) {
    const Outcome outcome = shell_.Run(line);
    EXPECT_EQ(outcome.Status, 1) << line;
    EXPECT_THAT(outcome.Err, HasSubstr("@" + kept + " exists already: it is left as it is.\n"));
    EXPECT_EQ(shell_.Listing(), "a.orb b.orb o.txt r.txt ") << line;
    EXPECT_EQ(shell_.Read("b.orb"), resolved) << line;
  }
  EXPECT_EQ(shell_.Run("resolve --orders @o.txt --no-clobber -o @c.orb @a.orb").Status, 0);
  EXPECT_EQ(shell_.Read("c.orb"), resolved);
}

TEST_F(Streams, TextsAreInTheEncodingThatIsAskedForOrShown) {
  const cli::Terminals utf8{.Out = true, .Err = true, .Utf8 = true};
  const cli::Terminals old{.Out = true, .Err = true};
  shell_.Write("o.txt", "FRA A(M\xfcn) hold\n");
  using Line = std::vector<std::string>;
  const Line resolve{"resolve", "--yes", "--orders", "@o.txt", "--report",
                     "-",       "-o",    "@b",       "@a.orb"};
  const Line both{"resolve",  "--encoding", "utf-8", "--yes", "--orders", "@o.txt",
                  "--report", "@r.txt",     "-o",    "@b",    "@a.orb"};
  for (const auto& [line, terminals, expected] :
       {std::tuple{resolve, cli::Terminals{}, "M\xfcn"}, std::tuple{resolve, old, "M\xfcn"},
        std::tuple{resolve, utf8, "M\xc3\xbcn"}, std::tuple{both, old, "M\xc3\xbcn"}}) {
    const Outcome outcome = shell_.Run(line, terminals);
    EXPECT_THAT(outcome.Err, HasSubstr(std::string("FRA A(") + expected));
    const std::string text = outcome.Out.empty() ? shell_.Read("r.txt") : outcome.Out;
    EXPECT_THAT(text, HasSubstr(std::string("[ FRA A(") + expected));
  }
  EXPECT_THAT(shell_.Run("show --encoding utf-8 @a.orb").Out, HasSubstr("M\xc3\xbcller"));
  EXPECT_THAT(shell_.Run("show @a.orb").Out, HasSubstr("M\xfcller"));
  EXPECT_THAT(shell_.Read("b"), HasSubstr("\"M\xfcller\"")) << "game files have their own form";
}

TEST_F(Streams, FailedOrdersAreRedOnATerminalThatHasColours) {
  shell_.Write("o.txt", "FRA A(Par) - Lon\nGER A(Mun) hold\n");
  const std::vector<std::string> line{"resolve", "--yes", "--orders", "@o.txt",
                                      "-o",      "@b",    "@a.orb"};
  EXPECT_EQ(shell_.Run(line, {.Out = true, .Colours = true}).Out,
            "\x1b[31m[ FRA A(Par) - Lon ]  impossible move\x1b[0m\n  GER A(Mun) hold  \n");
  for (const cli::Terminals& plain : {cli::Terminals{.Out = true}, {.Err = true, .Colours = true}})
    EXPECT_THAT(shell_.Run(line, plain).Out, StartsWith("[ FRA A(Par) - Lon ]"));
  shell_.Write("a.orb", Game("\x1b[2J"));
  EXPECT_THAT(shell_.Run({"show", "@a.orb"}, {.Out = true}).Out, HasSubstr("?[2J"));
}

}  // namespace
}  // namespace orb::tests
