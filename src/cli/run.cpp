#include "cli/run.h"

#include "cli/command.h"
#include "cli/command_line.h"
#include "cli/console.h"
#include "cli/help.h"
#include "model/errors.h"
#include "model/messages.h"

#include <array>

namespace orb::cli {
namespace {

constexpr std::array Commands{&NewCommand,   &ResolveCommand, &NextCommand, &UndoCommand,
                              &CheckCommand, &WhatIfCommand,  &ShowCommand, &MapCommand};

int Execute(const CommandLine& line, Console& console) {
  if (line.Has(OptionId::Version)) {
    console.Print(std::string(model::ProgramName) + ", orbctl\n");
    return ExitDone;
  }
  if (line.Has(OptionId::Help)) {
    console.Print(line.Verb == nullptr ? ProgramHelp(Commands) : CommandHelp(*line.Verb));
    return ExitDone;
  }
  return line.Verb->Execute(line, console);
}

}  // namespace

int Run(std::span<const std::string> arguments, std::ostream& out, std::ostream& err,
        bool errIsTerminal) {
  Console console(out, err, errIsTerminal);
  try {
    const int status = Execute(ParseCommandLine(arguments, Commands), console);
    // A full disk or a closed pipe may show only when the last bytes go out; a game may have told
    // it before.
    if (out.flush() || status != ExitDone) return status;
    console.Say("orbctl", "The standard output could not be written.");
    return ExitRefused;
  } catch (const UsageError& error) {
    console.Say("orbctl", error.what());
    console.Say("orbctl", "\"orbctl --help\" shows how to use it.");
    return ExitUsage;
  } catch (const std::exception& error) {
    console.Say("orbctl", model::SentenceOf(error));
    return ExitRefused;
  }
}

}  // namespace orb::cli
