#include "completions.h"

#include "cli/usage.h"

namespace orb::cli {
namespace {

constexpr std::string_view Head =
    R"sh(# Completes the command lines of orbctl in bash; made from its table of options.
_orbctl() {
  local word="${COMP_WORDS[COMP_CWORD]}" before="${COMP_WORDS[COMP_CWORD-1]}"
  local verb= i options
  # Bash makes a word of its own of "=".
  if [[ $before == = ]]; then before="${COMP_WORDS[COMP_CWORD-2]}"; fi
  if [[ $word == = ]]; then word=; fi
  for ((i = 1; i < COMP_CWORD; ++i)); do
    case "${COMP_WORDS[i]}" in
)sh";

constexpr std::string_view Middle = R"sh(
        verb="${COMP_WORDS[i]}"
        [[ $verb == help ]] || break ;;
    esac
  done
  case "$before" in
)sh";

constexpr std::string_view Tail = R"sh(  esac
  if [[ $word == -* || -z $verb || $verb == help ]]; then
    mapfile -t COMPREPLY < <(compgen -W "$options" -- "$word")
    return
  fi
  # Games, and the folders that they may be in.
  compopt -o filenames 2>/dev/null
  mapfile -t COMPREPLY < <(compgen -d -- "$word"; compgen -f -X '!*.orb' -- "$word")
}
complete -F _orbctl orbctl
)sh";

/// All spellings of a command's options, separated by blanks.
std::string Names(const Command& command) {
  std::string names;
  for (const Option* option : OptionsOf(command)) {
    for (const std::string_view name : Spellings(*option))
      names.append(names.empty() ? "" : " ").append(name);
  }
  return names;
}

/// What proposes the value of an option.
std::string Proposals(const Option& option) {
  std::string source;
  if (option.Kind == ValueKind::Choice) source = "-W " + Quoted(option.Choices);
  if (option.Kind == ValueKind::Directory) source = "-d";
  if (TakesFile(option)) source = "-f";
  if (source.empty()) return "return ;;\n";
  return (option.Kind == ValueKind::Choice ? "" : "compopt -o filenames 2>/dev/null; ") +
         ("mapfile -t COMPREPLY < <(compgen " + source + " -- \"$word\"); return ;;\n");
}

}  // namespace

std::string BashCompletion() {
  std::string script(Head);
  script.append("      ").append(CommandNames("|")).append(")").append(Middle);
  for (const Option& option : AllOptions()) {
    if (option.Kind == ValueKind::None) continue;
    std::string_view before = "    ";
    for (const std::string_view name : Spellings(option)) {
      script.append(before).append(name);
      before = "|";
    }
    script.append(") ").append(Proposals(option));
  }
  script.append("  esac\n  case \"$verb\" in\n    ''|help) options='");
  script.append(CommandNames(" ")).append(" ").append(Names(Command())).append("' ;;\n");
  for (const Command* command : AllCommands()) {
    script.append("    ").append(command->Name).append(") options='");
    script.append(Names(*command)).append("' ;;\n");
  }
  return script.append(Tail);
}

}  // namespace orb::cli
