#include "cli/usage.h"

#include <utility>

namespace orb::cli {
namespace {

/// -o and its alternatives; one of them has to be given.
std::string OutputUsage(const Command& command) {
  const bool mayReplace = Knows(command, OptionId::InPlace);
  std::string text(mayReplace ? "(-o " : "-o ");
  text.append(command.OutputName);
  if (!mayReplace) return text;
  text.append(" | --in-place");
  return text.append(Knows(command, OptionId::Try) ? " | --try)" : ")");
}

/// What -o names is the command's own.
std::string_view ValueName(const Command& command, const Option& option) {
  return option.Id == OptionId::Output ? command.OutputName : option.Value;
}

}  // namespace

std::vector<std::string> UsageParts(const Command& command) {
  std::vector<std::string> parts;
  for (const Option* option : OptionsOf(command)) {
    const bool standsWithOutput =
        option->Id == OptionId::InPlace ||
        (option->Id == OptionId::Try && Knows(command, OptionId::InPlace));
    if (option->IsCommon || standsWithOutput) continue;
    if (option->Id == OptionId::Output) {
      parts.push_back(OutputUsage(command));
      continue;
    }
    std::string& part = parts.emplace_back("[");
    part.append(option->Name);
    if (!option->Value.empty()) part.append(" ").append(option->Value);
    part.append("]");
  }
  if (command.Takes == Games::One) parts.emplace_back("GAME");
  if (command.Takes == Games::Two) parts.emplace_back("GAME OTHER");
  if (command.Takes == Games::OneAndOrder) parts.emplace_back("GAME \"ORDER\"");
  if (command.Takes == Games::Several) parts.emplace_back("GAME...");
  return parts;
}

std::vector<const Option*> OptionsOf(const Command& command) {
  std::vector<const Option*> options;
  for (const Option& option : AllOptions()) {
    if (Knows(command, option.Id)) options.push_back(&option);
  }
  return options;
}

std::string Spelled(const Command& command, const Option& option) {
  // The short spelling first, as everywhere.
  std::string_view first = option.Name;
  std::string_view second = option.Other;
  if (!second.empty() && second.size() < first.size()) std::swap(first, second);
  std::string text(first);
  if (!second.empty()) text.append(", ").append(second);
  if (!option.Value.empty()) text.append(" ").append(ValueName(command, option));
  return text;
}

std::string_view MeaningOf(const Command& command, const Option& option) {
  if (option.Id == OptionId::Output && command.OutputName == "DIR") return "where to write them";
  if (option.Id == OptionId::Output && command.OutputName != "PATH") return "the file to write";
  if (option.Id == OptionId::Power && !Knows(command, OptionId::Loose)) {
    return "the power that it is for (default: all, with a chooser)";
  }
  return option.Help;
}

}  // namespace orb::cli
