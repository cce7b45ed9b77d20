#include "completions.h"

#include "cli/usage.h"

namespace orb::cli {
namespace {

constexpr std::string_view Head = R"sh(#compdef orbctl
# Completes the command lines of orbctl in zsh; made from its table of options.
local -a verbs common
)sh";

constexpr std::string_view Middle = R"sh(local curcontext="$curcontext" state line
typeset -A opt_args
_arguments -C $common '1:command:->command' '*::argument:->argument' && return
case $state in
  command) _describe command verbs ;;
  argument)
    case $line[1] in
      help) _describe command verbs ;;
)sh";

/// What proposes the value of an option, as an action of _arguments.
std::string Proposals(const Option& option) {
  std::string action(":");
  action.append(option.Value).append(":");
  if (option.Kind == ValueKind::Choice) action.append("(").append(option.Choices).append(")");
  if (option.Kind == ValueKind::Directory) action.append("_files -/");
  if (TakesFile(option)) action.append("_files");
  return action;
}

/// An option under one of its spellings.
std::string Argument(const Command& command, const Option& option, std::string_view name) {
  std::string text(name);
  const bool takesValue = option.Kind != ValueKind::None;
  // "-oFILE" and "--output=FILE" are as good as a word of their own.
  if (takesValue) text.append(name.starts_with("--") ? "=" : "+");
  text.append("[");
  for (const char c : MeaningOf(command, option)) {
    if (c == '[' || c == ']' || c == ':') text += '\\';
    text += c;
  }
  text.append("]");
  return Quoted(takesValue ? text + Proposals(option) : text);
}

/// A game as an argument; `which` of them as _arguments counts.
std::string Game(std::string_view which) {
  return Quoted(std::string(which).append(":game:_files -g \"*.orb\""));
}

std::string Games(const Command& command) {
  switch (command.Takes) {
    case Games::One:
      return Game("1");
    case Games::Two:
      return Game("1").append(" ").append(Game("2"));
    case Games::Several:
      return Game("*");
    case Games::OneAndOrder:
      return Game("1").append(" '2:order:'");
    case Games::None:
      break;
  }
  return {};
}

std::string Arguments(const Command& command) {
  std::string text("      ");
  text.append(command.Name).append(") _arguments -s $common");
  for (const Option* option : OptionsOf(command)) {
    if (option->IsCommon) continue;
    for (const std::string_view name : Spellings(*option))
      text.append(" \\\n        ").append(Argument(command, *option, name));
  }
  const std::string games = Games(command);
  return text.append(games.empty() ? "" : " \\\n        ").append(games).append(" ;;\n");
}

}  // namespace

std::string ZshCompletion() {
  std::string script(Head);
  script.append("common=(\n");
  const Command any;
  for (const Option* option : OptionsOf(any)) {
    for (const std::string_view name : Spellings(*option))
      script.append("  ").append(Argument(any, *option, name)).append("\n");
  }
  script.append(")\nverbs=(\n");
  for (const Command* command : AllCommands()) {
    const std::string row = std::string(command->Name).append(":").append(command->Summary);
    script.append("  ").append(Quoted(row)).append("\n");
  }
  script.append("  'help:lists the options of a command'\n)\n").append(Middle);
  for (const Command* command : AllCommands())
    script.append(Arguments(*command));
  return script.append("    esac ;;\nesac\n");
}

}  // namespace orb::cli
