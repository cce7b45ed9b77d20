#include "cli/command.h"
#include "cli/desk.h"
#include "cli/help.h"
#include "cli/run.h"
#include "cli/text_encoding.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <sstream>

namespace orb::tests {
namespace {

using testing::HasSubstr;
using testing::StartsWith;

TEST(CommandLine, WhatIsWrongIsRefusedAndNothingIsDone) {
  const Desk desk;
  desk.Run("new -o @a.orb");
  desk.Run("new -o @b.orb");
  desk.MakeDirectory("out");
  desk.MakeDirectory("other");
  desk.Run("new -o @other/a.orb");
  const std::string before = desk.Listing();
  const std::string game = desk.Read("a.orb");
  const std::vector<std::string_view> lines{
      "",
      "frob @a.orb",
      "resolve",
      "resolve @a.orb",
      "resolve --in-place",
      "resolve --in-place --frob @a.orb",
      "resolve --in-place -x @a.orb",
      "resolve --in-place --blank @a.orb",
      "resolve --in-place --yes=1 @a.orb",
      "resolve --in-place -o @c.orb @a.orb",
      "resolve -o",
      "resolve -o @c.orb -o @d.orb @a.orb",
      "resolve --yes -o @c.orb @a.orb @b.orb",
      "resolve --yes --in-place --report @r.txt @a.orb @b.orb",
      "resolve --yes --in-place --orders @r.txt @a.orb @b.orb",
      "resolve --yes --in-place --reasons @r.txt @a.orb @b.orb",
      "resolve --yes --in-place @a.orb @a.orb",
      "resolve --yes --in-place @a.orb @out/../a.orb",
      "resolve --yes -o @out @a.orb @other/a.orb",
      "resolve --yes --in-place --report @a.orb @a.orb",
      "resolve --yes -o @c.orb --report @c.orb @a.orb",
      "resolve --yes -o @c.orb --report @a.orb @a.orb",
      "resolve --yes --in-place --report @out --reasons @out @a.orb",
      "resolve --yes --in-place --orders @out --report @out @a.orb",
      "resolve --in-place --report= @a.orb",
      "next @a.orb",
      "next --yes --in-place @a.orb",
      "new",
      "new -o @out",
      "new -o @c.orb @d.orb",
      "new -o @c.orb --title A\"B",
      "new -o @c.orb --title \u0416",
      "new -o @c.orb --title \xff",
      "check",
      "check --in-place @a.orb",
      "map @a.orb",
      "map -o @m.gif @a.orb",
      "map -o @m @a.orb",
      "map -o @m.png --mode red @a.orb",
      "map -o @m.png --width 0 @a.orb",
      "map -o @m.png --width 12x @a.orb",
      "map -o @m.png --width 99999999999 @a.orb",
      "map -o @m.png @a.orb @b.orb",
      "--data @nowhere new -o @c.orb",
  };
  for (const std::string_view line : lines) {
    const Outcome outcome = desk.Run(line);
    EXPECT_EQ(outcome.Status, 2) << line;
    EXPECT_EQ(outcome.Out, "") << line;
    EXPECT_THAT(outcome.Err, StartsWith("orbctl: ")) << line;
    EXPECT_EQ(desk.Listing(), before) << line;
    EXPECT_EQ(desk.Read("a.orb"), game) << line;
  }
}

TEST(CommandLine, HelpNamesEveryOptionOfTheCommandAndGoesToStandardOutput) {
  const Desk desk;
  const std::vector<const cli::Command*> commands{
      &cli::NewCommand,   &cli::ResolveCommand, &cli::NextCommand, &cli::UndoCommand,
      &cli::CheckCommand, &cli::ShowCommand,    &cli::MapCommand};
  const Outcome whole = desk.Run("--help");
  for (const cli::Command* command : commands) {
    EXPECT_THAT(whole.Out, HasSubstr("\n  " + std::string(command->Name) + " "));
    const Outcome outcome = desk.Run(std::string(command->Name) + " --help");
    EXPECT_EQ(outcome.Status, 0);
    EXPECT_EQ(outcome.Err, "");
    for (const cli::Option& option : cli::AllOptions()) {
      const bool known = std::find(command->Options.begin(), command->Options.end(), option.Id) !=
                         command->Options.end();
      const std::string row = "\n  " + std::string(option.Name) + " ";
      EXPECT_EQ(outcome.Out.find(row) != std::string::npos, known || cli::IsCommonOption(option.Id))
          << command->Name << row;
    }
    std::istringstream lines(outcome.Out);
    for (std::string line; std::getline(lines, line);)
      EXPECT_LE(line.size(), 80U) << line;
  }
  EXPECT_EQ(desk.Run("--version").Out, "ORB v5.5, orbctl\n");
}

TEST(CommandLine, ValuesMayStandBehindAnEqualsSignAndNamesMayBeginWithADash) {
  const Desk desk;
  EXPECT_EQ(desk.Run("new -o @a.orb --title=x=y").Status, 0);
  EXPECT_THAT(desk.Read("a.orb"), HasSubstr("\"x=y\",\"Spring\""));
  const Outcome outcome = desk.Run("show -- --a.orb");
  EXPECT_EQ(outcome.Status, 1);
  EXPECT_THAT(outcome.Err, StartsWith("--a.orb: "));
}

TEST(CommandLine, AnOutputThatCannotBeWrittenIsNoSuccess) {
  std::ostringstream err;
  std::ostream out(nullptr);
  const std::vector<std::string> arguments{"--help"};
  EXPECT_EQ(cli::Run(arguments, out, err), 1);
  EXPECT_THAT(err.str(), HasSubstr("output"));
}

TEST(TextEncoding, FindsTheEightBitFormOfEveryCharacterThatHasOne) {
  struct Case {
    std::string_view Utf8;
    std::optional<std::string> Bytes;
  };
  const std::vector<Case> cases{
      {"", ""},
      {"plain ~", "plain ~"},
      {"\u00e9\u00ff\u00a0", "\xe9\xff\xa0"},
      {"\u20ac\u0152\u0178\u2122", "\x80\x8c\x9f\x99"},
      {"\u0081\u009d", "\x81\x9d"},
      {"\u0080", std::nullopt},
      {"\u0416", std::nullopt},
      {"\U0001F600", std::nullopt},
      {"\xe9", std::nullopt},
      {"\xc3", std::nullopt},
      {"\xc3(", std::nullopt},
      {"\x80", std::nullopt},
      {"\xc1\xa9", std::nullopt},
      {"\xe0\x83\xa9", std::nullopt},
      {"\xff\xa9\xa9\xa9", std::nullopt},
  };
  for (const Case& c : cases)
    EXPECT_EQ(cli::ToWindows1252(c.Utf8), c.Bytes) << c.Utf8;
}

}  // namespace
}  // namespace orb::tests
