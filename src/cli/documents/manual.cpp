#include "manual.h"

#include "cli/command.h"
#include "cli/usage.h"

#include <string_view>

namespace orb::cli {
namespace {

/// A text that roff shows as it stands; it must not begin a line with a point or an apostrophe.
std::string Plain(std::string_view text) {
  std::string roff;
  for (const char c : text) {
    if (c == '\\') {
      roff += "\\e";
    } else if (c == '-') {
      roff += "\\-";
    } else if (c == '\'') {
      roff += "\\(aq";
    } else {
      roff += c;
    }
  }
  return roff;
}

std::string Bold(std::string_view text) {
  return "\\fB" + Plain(text) + "\\fR";
}

void AddOption(std::string& page, const Command& command, const Option& option) {
  page.append(".TP\n").append(Bold(Spelled(command, option))).append("\n");
  page.append(Plain(MeaningOf(command, option))).append(".\n");
}

void AddCommand(std::string& page, const Command& command) {
  page.append(".SS ").append(command.Name).append("\n");
  page.append(Bold("orbctl " + std::string(command.Name)));
  for (const std::string& part : UsageParts(command))
    page.append(" ").append(Plain(part));
  page.append("\n.PP\nIt ").append(Plain(command.Summary)).append(".\n");
  for (const Option* option : OptionsOf(command)) {
    if (!option->IsCommon) AddOption(page, command, *option);
  }
  for (const Example& example : command.Examples) {
    page.append(".PP\nExample: ").append(Plain(example.What)).append(":\n.PP\n.RS\n.EX\norbctl ");
    page.append(Plain(example.Line)).append("\n.EE\n.RE\n");
  }
}

}  // namespace

std::string ManualSections() {
  std::string page = ".SH COMMANDS\n";
  for (const Command* command : AllCommands())
    AddCommand(page, *command);
  page += ".SH OPTIONS OF EVERY COMMAND\n";
  const Command any;
  for (const Option* option : OptionsOf(any))
    AddOption(page, any, *option);
  return page;
}

}  // namespace orb::cli
