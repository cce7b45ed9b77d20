#include "completions.h"

#include "cli/usage.h"

namespace orb::cli {
namespace {

/// One line of the script, which holds while the condition does.
std::string Line(std::string_view condition, std::string_view rest) {
  std::string line("complete -c orbctl");
  if (!condition.empty()) line.append(" -n ").append(Quoted(condition));
  return line.append(" ").append(rest).append("\n");
}

std::string Argument(const Command& command, const Option& option) {
  std::string text;
  for (const std::string_view name : Spellings(option)) {
    const bool isLong = name.starts_with("--");
    text.append(isLong ? "-l " : "-s ").append(name.substr(isLong ? 2 : 1)).append(" ");
  }
  if (option.Kind == ValueKind::Choice) text.append("-x -a ").append(Quoted(option.Choices));
  if (option.Kind == ValueKind::Directory) text.append("-x -a '(__fish_complete_directories)'");
  if (option.Kind == ValueKind::Text) text.append("-x");
  if (TakesFile(option)) text.append("-r -F");
  return text.append(" -d ").append(Quoted(MeaningOf(command, option)));
}

}  // namespace

std::string FishCompletion() {
  std::string script =
      "# Completes the command lines of orbctl in fish; made from its table of options.\n";
  script.append(Line("", "-f"));
  const std::string none = "not __fish_seen_subcommand_from " + CommandNames(" ");
  for (const Command* command : AllCommands()) {
    const std::string name = std::string("-a ").append(command->Name);
    script.append(Line(none, name + " -d " + Quoted(command->Summary)));
    script.append(Line("__fish_seen_subcommand_from help", name));
  }
  script.append(Line(none, "-a help -d 'lists the options of a command'"));
  const Command any;
  for (const Option* option : OptionsOf(any))
    script.append(Line("", Argument(any, *option)));
  for (const Command* command : AllCommands()) {
    const std::string seen = "__fish_seen_subcommand_from " + std::string(command->Name);
    for (const Option* option : OptionsOf(*command)) {
      if (!option->IsCommon) script.append(Line(seen, Argument(*command, *option)));
    }
    const bool takesGame = command->Takes != Games::None;
    if (takesGame) script.append(Line(seen, "-k -a '(__fish_complete_suffix .orb)'"));
  }
  return script;
}

}  // namespace orb::cli
