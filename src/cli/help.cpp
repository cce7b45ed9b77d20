#include "cli/help.h"

#include <algorithm>
#include <vector>

namespace orb::cli {
namespace {

bool Takes(const Command& command, OptionId id) {
  return std::find(command.Options.begin(), command.Options.end(), id) != command.Options.end();
}

std::string Spelled(const Option& option) {
  std::string text(option.Name);
  if (!option.Value.empty()) text.append(" ").append(option.Value);
  return text;
}

/// A name and its explanation, the explanations below each other.
std::string Row(std::string_view name, std::string_view explanation) {
  constexpr std::size_t width = 18;
  std::string row = "  ";
  row.append(name).append(std::max(name.size() + 1, width) - name.size(), ' ');
  return row.append(explanation).append("\n");
}

/// How -o is shown: it names a game for `new`, a picture for `map`; the commands that change games
/// take it or --in-place.
std::string OutputUsage(const Command& command) {
  if (command.Takes == Games::None) return "-o GAME";
  if (!Takes(command, OptionId::InPlace)) return "-o PICTURE";
  return Takes(command, OptionId::Try) ? "(-o PATH | --in-place | --try)"
                                       : "(-o PATH | --in-place)";
}

/// The form of the command line, broken before the column where a terminal ends.
std::string Usage(const Command& command) {
  std::vector<std::string> parts{"[--data DIR]", std::string(command.Name)};
  for (const Option& option : AllOptions()) {
    // --in-place and --try are shown together with -o, as its alternatives.
    if (!Takes(command, option.Id)) continue;
    if (option.Id == OptionId::Output) {
      parts.push_back(OutputUsage(command));
    } else if (option.Id != OptionId::InPlace && option.Id != OptionId::Try) {
      parts.push_back(std::string("[").append(Spelled(option)).append("]"));
    }
  }
  if (command.Takes == Games::One) parts.emplace_back("GAME");
  if (command.Takes == Games::OneAndOrder) parts.emplace_back("GAME \"ORDER\"");
  if (command.Takes == Games::Several) parts.emplace_back("GAME...");
  constexpr std::size_t width = 78;
  std::string usage;
  std::string line = "Usage: orbctl";
  const std::size_t indent = line.size();
  for (const std::string& part : parts) {
    if (line.size() + 1 + part.size() > width) {
      usage.append(line).append("\n");
      line.assign(indent, ' ');
    }
    line.append(" ").append(part);
  }
  return usage + line + "\n";
}

std::string OptionRow(const Command& command, const Option& option) {
  // The table's text for -o speaks of directories, which only commands for several games accept.
  const bool isFileOnly = option.Id == OptionId::Output && !Takes(command, OptionId::InPlace);
  return isFileOnly ? Row(OutputUsage(command), "the file to write")
                    : Row(Spelled(option), option.Help);
}

}  // namespace

std::string ProgramHelp(std::span<const Command* const> commands) {
  std::string help =
      "Usage: orbctl [--data DIR] COMMAND [OPTIONS] GAME...\n"
      "Keeps and resolves games of armies and fleets in a terminal.\n\nCommands:\n";
  for (const Command* command : commands)
    help += Row(command->Name, command->Summary);
  help += "\nOptions:\n";
  for (const Option& option : AllOptions()) {
    if (IsCommonOption(option.Id)) help += Row(Spelled(option), option.Help);
  }
  return help +
         "\n\"orbctl COMMAND --help\" lists the options of a command.\n"
         "Exit status: 0 every game done, 1 a game was abandoned or refused, 2 wrong usage.\n";
}

std::string CommandHelp(const Command& command) {
  std::string help = Usage(command);
  help.append("It ").append(command.Summary).append(".\n");
  help += "\nOptions:\n";
  for (const Option& option : AllOptions()) {
    if (Takes(command, option.Id) || IsCommonOption(option.Id)) help += OptionRow(command, option);
  }
  return help;
}

}  // namespace orb::cli
