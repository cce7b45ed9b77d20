#include "cli/command_line.h"

#include "cli/command.h"
#include "cli/paths.h"
#include "cli/suggestion.h"
#include "model/files.h"

#include <algorithm>
#include <string_view>
#include <utility>
#include <vector>

namespace orb::cli {
namespace {

/// "orbctl help resolve" is another way to ask for what "orbctl resolve --help" gives.
constexpr std::string_view HelpWord = "help";

/// Options before the command can only be those that every command knows.
bool IsKnown(const Command* command, const Option& option) {
  return command == nullptr ? option.IsCommon : Knows(*command, option.Id);
}

const Command& FindCommand(const std::string& name) {
  std::vector<std::string_view> names{HelpWord};
  for (const Command* command : AllCommands()) {
    if (command->Name == name) return *command;
    names.push_back(command->Name);
  }
  throw UsageError("There is no command \"" + name + "\"." + Suggestion(name, names));
}

[[noreturn]] void RefuseOption(const Command* command, std::string_view name) {
  std::vector<std::string_view> names;
  for (const Option& option : AllOptions()) {
    if (!IsKnown(command, option)) continue;
    for (const std::string_view spelling : {option.Name, option.Other}) {
      if (spelling.starts_with("--")) names.push_back(spelling);
    }
  }
  std::string text = command == nullptr ? "" : std::string(command->Name) + ": ";
  text.append("There is no option ").append(name).append(".");
  throw UsageError(text.append(Suggestion(name, names)));
}

/// A path as the programs that are called by it have it; "-" stands for a stream.
std::string WrittenOut(ValueKind kind, const std::string& value) {
  if (value != "-") return value;
  if (kind == ValueKind::FileToRead) return std::string(model::StandardInput);
  if (kind == ValueKind::FileToWrite) return std::string(StandardOutput);
  return value;
}

/// Goes through the arguments from left to right.
class Reader {
 public:
  explicit Reader(std::span<const std::string> arguments) : arguments_(arguments) {}

  CommandLine Read() {
    while (next_ < arguments_.size()) {
      const std::string& argument = arguments_[next_++];
      if (!optionsEnded_ && argument == "--") {
        optionsEnded_ = true;
      } else if (!optionsEnded_ && argument.size() > 1 && argument.front() == '-') {
        ReadOption(argument);
      } else {
        ReadWord(argument);
      }
    }
    return std::move(line_);
  }

 private:
  void ReadWord(const std::string& word) {
    if (line_.Verb != nullptr) {
      line_.Games.push_back(WrittenOut(ValueKind::FileToRead, word));
    } else if (word == HelpWord) {
      line_.Set(OptionOf(OptionId::Help), {});
    } else {
      line_.Verb = &FindCommand(word);
    }
  }

  void ReadOption(const std::string& argument) {
    // A long option has its value behind "=", a short one right behind its letter.
    const bool isLong = argument.starts_with("--");
    const std::size_t end = isLong ? argument.find('=') : 2;
    const std::string_view name = std::string_view(argument).substr(0, end);
    const auto table = AllOptions();
    const auto option = std::ranges::find_if(
        table, [&](const Option& row) { return row.Name == name || row.Other == name; });
    const bool hasValue = argument.size() > name.size();
    if (option == table.end() || !IsKnown(line_.Verb, *option)) RefuseOption(line_.Verb, name);
    if (option->Kind == ValueKind::None) {
      if (hasValue && !isLong) RefuseOption(line_.Verb, argument);
      if (hasValue) {
        throw UsageError("The option " + std::string(name) + " takes no value.");
      }
      line_.Set(*option, {});
    } else if (hasValue) {
      Set(*option, argument.substr(end + (isLong ? 1 : 0)));
    } else if (next_ < arguments_.size()) {
      Set(*option, arguments_[next_++]);
    } else {
      throw UsageError("The option " + std::string(name) + " needs a value.");
    }
  }

  void Set(const Option& option, const std::string& value) {
    line_.Set(option, WrittenOut(option.Kind, value));
  }

  std::span<const std::string> arguments_;
  std::size_t next_ = 0;
  bool optionsEnded_ = false;
  CommandLine line_;
};

void CheckOutput(const CommandLine& line) {
  const std::string name(line.Verb->Name);
  if (!Knows(*line.Verb, OptionId::Output)) return;
  const bool mayReplace = Knows(*line.Verb, OptionId::InPlace);
  if (line.Has(OptionId::Output) && line.Has(OptionId::InPlace)) {
    throw UsageError(name + ": -o and --in-place cannot go together.");
  }
  if (line.Has(OptionId::NoClobber) && line.Has(OptionId::InPlace)) {
    throw UsageError(name + ": --no-clobber and --in-place cannot go together.");
  }
  if (line.Has(OptionId::Json) && line.Has(OptionId::Output) &&
      *line.Value(OptionId::Output) == StandardOutput) {
    throw UsageError(name + ": With --json the standard output is no place for the game.");
  }
  if (line.Has(OptionId::Try) && mayReplace) {
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
    if (line.Has(OptionId::FilesFrom)) return;
    throw UsageError(name + ": The game file is missing.");
  } else if (line.Verb->Takes == Games::OneAndOrder) {
    if (count != 2) throw UsageError(name + ": It takes a game file and the text of one order.");
  } else if (line.Verb->Takes == Games::Two) {
    if (count != 2) throw UsageError(name + ": It takes two game files.");
  } else if (line.Verb->Takes == Games::One && count > 1 && !line.Has(OptionId::Animate)) {
    throw UsageError(name + ": One game file at a time.");
  }
}

void CheckInputs(const CommandLine& line) {
  auto inputs = std::ranges::count(line.Games, model::StandardInput);
  for (const OptionId id : {OptionId::Orders, OptionId::FilesFrom})
    inputs += line.Value(id) == model::StandardInput ? 1 : 0;
  if (inputs > 1) throw UsageError("The standard input can be read only once.");
}

}  // namespace

CommandLine ParseCommandLine(std::span<const std::string> arguments) {
  CommandLine line = Reader(arguments).Read();
  if (line.Has(OptionId::Help) || line.Has(OptionId::Version)) return line;
  if (line.Verb == nullptr) throw UsageError("The command is missing.");
  CheckOutput(line);
  CheckGames(line);
  CheckInputs(line);
  return line;
}

}  // namespace orb::cli
