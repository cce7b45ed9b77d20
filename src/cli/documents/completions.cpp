#include "completions.h"

namespace orb::cli {

std::vector<std::string_view> Spellings(const Option& option) {
  std::vector<std::string_view> names{option.Name};
  if (!option.Other.empty()) names.push_back(option.Other);
  return names;
}

std::string CommandNames(std::string_view separator) {
  std::string names;
  for (const Command* command : AllCommands())
    names.append(command->Name).append(separator);
  return names.append("help");
}

std::string Quoted(std::string_view text) {
  std::string quoted = "'";
  for (const char c : text)
    c == '\'' ? quoted.append(R"('\'')") : quoted.append(1, c);
  return quoted + "'";
}

bool TakesFile(const Option& option) {
  return option.Kind == ValueKind::FileToRead || option.Kind == ValueKind::FileToWrite;
}

}  // namespace orb::cli
