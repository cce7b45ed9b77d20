#include "cli/run.h"

#include "cli/command.h"
#include "cli/command_line.h"
#include "cli/console.h"
#include "cli/help.h"
#include "cli/paths.h"
#include "model/errors.h"
#include "model/messages.h"
#include "text/strings.h"

namespace orb::cli {
namespace {

void UseEncoding(const CommandLine& line, Console& console) {
  if (!line.Has(OptionId::Encoding)) return;
  const std::string name = text::LowerCase(*line.Value(OptionId::Encoding));
  if (name == "utf-8" || name == "utf8") return console.UseEncoding(Encoding::Utf8);
  if (name == "windows-1252") return console.UseEncoding(Encoding::Windows1252);
  throw UsageError("There is no encoding \"" + *line.Value(OptionId::Encoding) +
                   "\": --encoding is utf-8 or windows-1252.");
}

int Execute(CommandLine line, Console& console) {
  if (line.Has(OptionId::Version)) {
    console.Print(std::string(model::ProgramName) + ", orbctl\n");
    return ExitDone;
  }
  if (line.Has(OptionId::Help)) {
    console.Print(line.Verb == nullptr ? ProgramHelp() : CommandHelp(*line.Verb));
    return ExitDone;
  }
  UseEncoding(line, console);
  AddListedGames(line);
  return line.Verb->Execute(line, console);
}

}  // namespace

int Run(std::span<const std::string> arguments, std::ostream& out, std::ostream& err,
        const Terminals& terminals) {
  Console console(out, err, terminals);
  try {
    const int status = Execute(ParseCommandLine(arguments), console);
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
