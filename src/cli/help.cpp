#include "cli/help.h"

#include "cli/usage.h"
#include "model/files.h"
#include "render/map_module.h"

#include <algorithm>
#include <utility>
#include <vector>

namespace orb::cli {
namespace {

/// Names and their explanations, the explanations below each other.
using Rows = std::vector<std::pair<std::string, std::string>>;

std::string Table(const Rows& rows) {
  std::size_t width = 0;
  for (const auto& [name, explanation] : rows)
    width = std::max(width, name.size());
  std::string text;
  for (const auto& [name, explanation] : rows) {
    text.append("  ").append(name).append(width + 2 - name.size(), ' ');
    text.append(explanation).append("\n");
  }
  return text;
}

Rows OptionRows(const Command& command) {
  Rows rows;
  for (const Option* option : OptionsOf(command))
    rows.emplace_back(Spelled(command, *option), MeaningOf(command, *option));
  return rows;
}

/// What a command does, and what of it can not be done as things stand.
std::string SummaryOf(const Command& command) {
  std::string summary(command.Summary);
  if (!command.Undrawn.empty() && !render::CanDraw(model::ProgramDirectory())) {
    summary.append(" (").append(command.Undrawn).append(": ");
    summary.append(render::DrawModule).append(" is missing)");
  }
  return summary;
}

/// The form of the command line, broken before the column where a terminal ends.
std::string Usage(const Command& command) {
  constexpr std::size_t width = 78;
  std::string usage;
  std::string line = "Usage: orbctl";
  const std::size_t indent = line.size();
  line.append(" ").append(command.Name);
  for (const std::string& part : UsageParts(command)) {
    if (line.size() + 1 + part.size() > width) {
      usage.append(line).append("\n");
      line.assign(indent, ' ');
    }
    line.append(" ").append(part);
  }
  return usage + line + "\n";
}

}  // namespace

std::string ProgramHelp() {
  std::string help =
      "Usage: orbctl [--data DIR] COMMAND [OPTIONS] GAME...\n"
      "       orbctl help COMMAND\n"
      "Keeps and resolves games of armies and fleets in a terminal.\n\nCommands:\n";
  Rows commands;
  for (const Command* command : AllCommands())
    commands.emplace_back(command->Name, SummaryOf(*command));
  help += Table(commands);
  help += "\nOptions of every command:\n";
  help += Table(OptionRows(Command()));
  return help +
         "\n\"-\" stands for the standard input or output wherever a file is named.\n"
         "\"orbctl COMMAND --help\" lists the options of a command.\n"
         "Exit status: 0 every game done, 1 a game was abandoned or refused, 2 wrong usage.\n";
}

std::string CommandHelp(const Command& command) {
  std::string help = Usage(command);
  help.append("It ").append(SummaryOf(command)).append(".\n\nOptions:\n");
  help.append(Table(OptionRows(command)));
  help.append(command.Examples.size() == 1 ? "\nExample:\n" : "\nExamples:\n");
  for (const Example& example : command.Examples) {
    help.append("  ").append(example.What).append(":\n");
    help.append("    orbctl ").append(example.Line).append("\n");
  }
  return help;
}

}  // namespace orb::cli
