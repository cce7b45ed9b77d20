#include "cli/command_line.h"

#include "cli/command.h"
#include "cli/help.h"
#include "cli/run.h"
#include "cli/shell.h"
#include "model/messages.h"
#include "support/drawn_cases.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <sstream>

namespace orb::tests {
namespace {

using testing::HasSubstr;
using testing::Matches;
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
  std::vector<DrawnRow> rows = LoadDrawnRows("cli/lines.txt", "refused");
  rows.emplace_back("", "The command is missing.");
  rows.emplace_back("new -o @c.orb --title \xff",
                    "new: The title has a character that game files cannot hold.");
  for (const auto& [line, sentence] : rows) {
    const Outcome outcome = shell.Run(line);
    EXPECT_EQ(outcome.Status, 2) << line;
    EXPECT_EQ(outcome.Out, "") << line;
    EXPECT_THAT(outcome.Err, StartsWith("orbctl: " + sentence + "\n")) << line;
    EXPECT_EQ(shell.Listing(), before) << line;
    EXPECT_EQ(shell.Read("a.orb"), game) << line;
  }
}

TEST(CommandLine, HelpNamesEveryOptionOfTheCommandAndGoesToStandardOutput) {
  const Shell shell;
  const Outcome whole = shell.Run("--help");
  for (const cli::Command* command : cli::AllCommands()) {
    EXPECT_THAT(whole.Out, HasSubstr("\n  " + std::string(command->Name) + " "));
    const Outcome outcome = shell.Run(std::string(command->Name) + " --help");
    EXPECT_EQ(outcome.Status, 0);
    EXPECT_EQ(outcome.Err, "");
    const std::size_t start = outcome.Out.find("\nOptions:\n");
    const std::string rows = outcome.Out.substr(start, outcome.Out.find("\nExample") - start);
    for (const cli::Option& option : cli::AllOptions()) {
      for (const std::string_view name : {option.Name, option.Other}) {
        const auto row = testing::ContainsRegex("(\n  |, )" + std::string(name) + "[ ,]");
        const bool isKnown = !name.empty() && Knows(*command, option.Id);
        EXPECT_EQ(Matches(row)(rows), isKnown) << command->Name << name;
      }
    }
  }
  const std::vector<std::pair<std::string, std::string>> outputs = {
      {"new", " -o GAME\n"},
      {"map", " -o PICTURE\n              GAME\n"},
      {"undo", " (-o PATH | --in-place) GAME...\n"}};
  for (const auto& [command, usage] : outputs)
    EXPECT_THAT(shell.Run(command + " --help").Out, HasSubstr(usage));
  EXPECT_EQ(shell.Run("--version").Out, std::string(model::ProgramName) + ", orbctl\n");
}

/// The words of a line as a shell parts them.
std::vector<std::string> ShellWords(std::string_view line) {
  std::vector<std::string> words(1);
  bool isQuoted = false;
  for (const char c : line) {
    if (c == '"') {
      isQuoted = !isQuoted;
    } else if (c == ' ' && !isQuoted) {
      words.emplace_back();
    } else {
      words.back() += c;
    }
  }
  return words;
}

TEST(CommandLine, EveryExampleIsOne) {
  for (const cli::Command* command : cli::AllCommands()) {
    EXPECT_FALSE(command->Examples.empty()) << command->Name;
    for (const cli::Example& example : command->Examples) {
      const std::string_view line = example.Line.substr(0, example.Line.find(" | "));
      EXPECT_EQ(cli::ParseCommandLine(ShellWords(line)).Verb, command) << line;
    }
  }
}

TEST(CommandLine, HasManySpellings) {
  for (const auto& [line, same] : LoadDrawnRows("cli/lines.txt", "the same")) {
    const Shell a;
    const Shell b;
    for (const Shell* shell : {&a, &b})
      shell->Write("a.orb", GameFile("Spring", "finished", "FRA A(Par)\n"));
    const Outcome one = a.Run(line);
    const Outcome other = b.Run(same);
    EXPECT_EQ(one.Status, 0) << line;
    EXPECT_EQ(one.Out, other.Out) << line;
    EXPECT_EQ(a.Listing(), b.Listing()) << line;
    EXPECT_EQ(a.Read("b.orb"), b.Read("b.orb")) << line;
  }
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

}  // namespace
}  // namespace orb::tests
