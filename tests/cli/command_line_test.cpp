#include "cli/command.h"
#include "cli/help.h"
#include "cli/run.h"
#include "cli/shell.h"
#include "model/messages.h"
#include "text/encoding.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <sstream>

namespace orb::tests {
namespace {

using testing::HasSubstr;
using testing::StartsWith;

TEST(CommandLine, WhatIsWrongIsRefusedAndNothingIsDone) {
  const Shell shell;
  shell.Run("new -o @a.orb");
  shell.Run("new -o @b.orb");
  shell.MakeDirectory("out");
  shell.MakeDirectory("other");
  shell.Run("new -o @other/a.orb");
  const std::string before = shell.Listing();
  const std::string game = shell.Read("a.orb");
  const std::vector<std::string_view> lines{
      "",
      "frob @a.orb",
      "resolve @a.orb",
      "resolve --in-place --frob @a.orb",
      "resolve --in-place --blank @a.orb",
      "resolve --in-place --yes=1 @a.orb",
      "resolve --in-place -o @c.orb @a.orb",
      "resolve -o @c.orb -o @d.orb @a.orb",
      "resolve --yes -o @c.orb @a.orb @b.orb",
      "resolve --yes --in-place --report @r.txt @a.orb @b.orb",
      "resolve --yes --in-place --reasons @r.txt @a.orb @b.orb",
      "resolve --yes --in-place @a.orb @out/../a.orb",
      "resolve --yes -o @out @a.orb @other/a.orb",
      "resolve --yes --in-place --report @a.orb @a.orb",
      "resolve --yes -o @c.orb --report @c.orb @a.orb",
      "resolve --yes -o @c.orb --report @a.orb @a.orb",
      "resolve --yes --in-place --report @out --reasons @out @a.orb",
      "resolve --yes --in-place --orders @out --report @out @a.orb",
      "resolve --in-place --report= @a.orb",
      "next --yes --in-place @a.orb",
      "new",
      "new -o @c.orb @d.orb",
      "new -o @c.orb --title A\"B",
      "new -o @c.orb --title \u0416",
      "new -o @c.orb --title \xff",
      "check --in-place @a.orb",
      "check --loose @a.orb",
      "check --orders @b.orb --power FRA @a.orb",
      "check --orders @b.orb --loose --power XYZ @a.orb",
      "map --loose -o @m.png @a.orb",
      "map @a.orb",
      "map -o @m.gif @a.orb",
      "map -o @m.png --mode red @a.orb",
      "map -o @m.png --width 0 @a.orb",
      "map -o @m.png --width 99999999999 @a.orb",
      "map -o @m.png @a.orb @b.orb",
      "map -o @m.png @m.png",
      "--data @nowhere new -o @c.orb"};
  for (const std::string_view line : lines) {
    const Outcome outcome = shell.Run(line);
    EXPECT_EQ(outcome.Status, 2) << line;
    EXPECT_EQ(outcome.Out, "") << line;
    EXPECT_THAT(outcome.Err, StartsWith("orbctl: ")) << line;
    EXPECT_EQ(shell.Listing(), before) << line;
    EXPECT_EQ(shell.Read("a.orb"), game) << line;
  }
}

TEST(CommandLine, HelpNamesEveryOptionOfTheCommandAndGoesToStandardOutput) {
  const Shell shell;
  const Outcome whole = shell.Run("--help");
  for (const cli::Command* command :
       {&cli::NewCommand, &cli::ResolveCommand, &cli::NextCommand, &cli::UndoCommand,
        &cli::CheckCommand, &cli::ShowCommand, &cli::MapCommand}) {
    EXPECT_THAT(whole.Out, HasSubstr("\n  " + std::string(command->Name) + " "));
    const Outcome outcome = shell.Run(std::string(command->Name) + " --help");
    EXPECT_EQ(outcome.Status, 0);
    EXPECT_EQ(outcome.Err, "");
    for (const cli::Option& option : cli::AllOptions()) {
      const bool known = std::find(command->Options.begin(), command->Options.end(), option.Id) !=
                         command->Options.end();
      const std::string row = "\n  " + std::string(option.Name) + " ";
      EXPECT_EQ(outcome.Out.find(row) != std::string::npos, known || cli::IsCommonOption(option.Id))
          << command->Name << row;
    }
  }
  EXPECT_EQ(shell.Run("--version").Out, std::string(model::ProgramName) + ", orbctl\n");
}

TEST(CommandLine, ValuesMayStandBehindAnEqualsSignAndNamesMayBeginWithADash) {
  const Shell shell;
  EXPECT_EQ(shell.Run("new -o @a.orb --title=x=y").Status, 0);
  EXPECT_THAT(shell.Read("a.orb"), HasSubstr("\"x=y\",\"Spring\""));
  const Outcome outcome = shell.Run("show -- --a.orb");
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
  const std::vector<std::pair<std::string, std::string>> cases{
      {"", ""},
      {"plain ~", "plain ~"},
      {"\u00e9\u00ff\u00a0", "\xe9\xff\xa0"},
      {"\u20ac\u0152\u0178\u2122", "\x80\x8c\x9f\x99"},
      {"\u0081\u009d", "\x81\x9d"}};
  for (const auto& [utf8, bytes] : cases)
    EXPECT_EQ(text::ToWindows1252(utf8), bytes) << utf8;
  for (const char* none : {"\u0080", "\u0416", "\U0001F600", "\xe9", "\xc3", "\xc3(", "\x80",
                           "\xc1\xa9", "\xe0\x83\xa9", "\xff\xa9\xa9\xa9"}) {
    EXPECT_EQ(text::ToWindows1252(none), std::nullopt) << none;
  }
}

}  // namespace
}  // namespace orb::tests
