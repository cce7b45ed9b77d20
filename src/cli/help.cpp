#include "cli/help.h"

#include <algorithm>

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

std::string OutputUsage(const Command& command) {
  if (command.Takes == Games::None) return " -o GAME";
  return Takes(command, OptionId::InPlace) ? " (-o PATH | --in-place)" : " -o PICTURE";
}

std::string Usage(const Command& command) {
  std::string usage = "Usage: orbctl [--data DIR] ";
  usage += command.Name;
  for (const Option& option : AllOptions()) {
    if (!Takes(command, option.Id)) continue;
    if (option.Id == OptionId::Output) {
      usage += OutputUsage(command);
    } else if (option.Id != OptionId::InPlace) {
      usage += " [" + Spelled(option) + "]";
    }
  }
  if (command.Takes == Games::One) usage += " GAME";
  if (command.Takes == Games::Several) usage += " GAME...";
  return usage + "\n";
}

template <class IsListed>
std::string OptionRows(IsListed isListed) {
  std::string rows;
  for (const Option& option : AllOptions()) {
    if (isListed(option.Id)) rows += Row(Spelled(option), option.Help);
  }
  return rows;
}

}  // namespace

std::string ProgramHelp(std::span<const Command* const> commands) {
  std::string help =
      "Usage: orbctl [--data DIR] COMMAND [OPTIONS] GAME...\n"
      "Keeps and resolves games of armies and fleets in a terminal.\n\nCommands:\n";
  for (const Command* command : commands)
    help += Row(command->Name, command->Summary);
  help += "\nOptions:\n" + OptionRows(IsCommonOption);
  return help +
         "\n\"orbctl COMMAND --help\" tells the options of a command.\n"
         "Exit status: 0 every game done, 1 a game was abandoned or refused, 2 wrong usage.\n";
}

std::string CommandHelp(const Command& command) {
  std::string help = Usage(command);
  help.append("orbctl ").append(command.Name).append(" ").append(command.Summary).append(".\n");
  return help + "\nOptions:\n" +
         OptionRows([&](OptionId id) { return Takes(command, id) || IsCommonOption(id); });
}

}  // namespace orb::cli
