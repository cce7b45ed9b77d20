#include "cli/command_line.h"

#include <algorithm>
#include <utility>

namespace orb::cli {
namespace {

bool Knows(const Command* command, OptionId id) {
  // Options before the command can only be those that every command knows.
  if (command == nullptr) return IsCommonOption(id);
  return IsCommonOption(id) ||
         std::find(command->Options.begin(), command->Options.end(), id) != command->Options.end();
}

const Command& FindCommand(const std::string& name, std::span<const Command* const> commands) {
  for (const Command* command : commands) {
    if (command->Name == name) return *command;
  }
  throw UsageError("There is no command \"" + name + "\".");
}

/// Goes through the arguments from left to right.
class Reader {
 public:
  Reader(std::span<const std::string> arguments, std::span<const Command* const> commands)
      : arguments_(arguments), commands_(commands) {}

  CommandLine Read() {
    while (next_ < arguments_.size()) {
      const std::string& argument = arguments_[next_++];
      if (!optionsEnded_ && argument == "--") {
        optionsEnded_ = true;
      } else if (!optionsEnded_ && argument.size() > 1 && argument.front() == '-') {
        ReadOption(argument);
      } else if (line_.Verb == nullptr) {
        line_.Verb = &FindCommand(argument, commands_);
      } else {
        line_.Games.push_back(argument);
      }
    }
    return std::move(line_);
  }

 private:
  void ReadOption(const std::string& argument) {
    // As usual only long options take a value behind "="; "-o=x" is none that is known.
    const std::size_t equals = argument.starts_with("--") ? argument.find('=') : std::string::npos;
    const std::string_view name = std::string_view(argument).substr(0, equals);
    const auto table = AllOptions();
    const auto option =
        std::find_if(table.begin(), table.end(), [&](const Option& o) { return o.Name == name; });
    if (option == table.end() || !Knows(line_.Verb, option->Id)) {
      const std::string command = line_.Verb == nullptr ? "" : std::string(line_.Verb->Name) + ": ";
      throw UsageError(command + "There is no option " + std::string(name) + ".");
    }
    if (option->Value.empty()) {
      if (equals != std::string::npos) {
        throw UsageError("The option " + std::string(name) + " takes no value.");
      }
      line_.Set(*option, {});
    } else if (equals != std::string::npos) {
      line_.Set(*option, argument.substr(equals + 1));
    } else if (next_ < arguments_.size()) {
      line_.Set(*option, arguments_[next_++]);
    } else {
      throw UsageError("The option " + std::string(name) + " needs a value.");
    }
  }

  std::span<const std::string> arguments_;
  std::span<const Command* const> commands_;
  std::size_t next_ = 0;
  bool optionsEnded_ = false;
  CommandLine line_;
};

void CheckOutput(const CommandLine& line) {
  const std::string name(line.Verb->Name);
  if (!Knows(line.Verb, OptionId::Output)) return;
  const bool mayReplace = Knows(line.Verb, OptionId::InPlace);
  if (line.Has(OptionId::Output) && line.Has(OptionId::InPlace)) {
    throw UsageError(name + ": -o and --in-place cannot go together.");
  }
  if (line.Has(OptionId::Try)) {
    for (const OptionId id : {OptionId::Output, OptionId::InPlace, OptionId::Report}) {
      if (line.Has(id)) throw UsageError(name + ": --try writes no file.");
    }
    return;
  }
  if (!line.Has(OptionId::Output) && !line.Has(OptionId::InPlace)) {
    throw UsageError(
        name + (mayReplace ? ": -o PATH or --in-place is missing." : ": -o PATH is missing."));
  }
}

void CheckGames(const CommandLine& line) {
  const std::string name(line.Verb->Name);
  const std::size_t count = line.Games.size();
  if (line.Verb->Takes == Games::None) {
    if (count > 0)
      throw UsageError(name + ": It takes no game file, but \"" + line.Games[0] + "\" is given.");
  } else if (count == 0) {
    throw UsageError(name + ": The game file is missing.");
  } else if (line.Verb->Takes == Games::OneAndOrder) {
    if (count != 2) throw UsageError(name + ": It takes a game file and the text of one order.");
  } else if (line.Verb->Takes == Games::One && count > 1) {
    throw UsageError(name + ": One game file at a time.");
  }
}

}  // namespace

CommandLine ParseCommandLine(std::span<const std::string> arguments,
                             std::span<const Command* const> commands) {
  CommandLine line = Reader(arguments, commands).Read();
  if (line.Has(OptionId::Help) || line.Has(OptionId::Version)) return line;
  if (line.Verb == nullptr) throw UsageError("The command is missing.");
  CheckOutput(line);
  CheckGames(line);
  return line;
}

}  // namespace orb::cli
