#include "pages/order_sheet.h"

#include "cli/commands.h"
#include "cli/delivery.h"
#include "cli/games.h"
#include "model/files.h"
#include "render/map_module.h"
#include "text/encoding.h"

#include <array>

namespace orb::cli {
namespace {

constexpr std::array Options{OptionId::Power, OptionId::Mail, OptionId::Mode, OptionId::Output,
                             OptionId::NoClobber};

constexpr auto Examples = std::to_array<Example>({
    {"a page on which France enters its orders",
     "sheet --power FRA --mail gm@example.org -o france.html league.orb"},
    {"one page for all, who choose their power on it", "sheet -o orders.html league.orb"},
});

/// The address in the form of texts. A character without an 8-bit form has no place in it.
std::string AddressOf(const CommandLine& line) {
  const auto address = text::ToWindows1252(line.Value(OptionId::Mail).value_or(""));
  if (!address) throw UsageError("sheet: --mail is an address of mail.");
  return *address;
}

int Execute(const CommandLine& line, Console& console) {
  const settings::MapOptions options{ModeOf(line, "colour"), false, true, true};
  const std::filesystem::path data = DataDirectory(line);
  const std::string power = PowerOf(line);
  const std::string address = AddressOf(line);
  return ForEachGame(line, console, PlanOneOutput(line), [&](GameAtWork& at) {
    ExpectNothingToKeep(at.Paths);
    const std::string page = render::WithSvgMaterial(
        [&](render::SvgMaterial& material) {
          pages::Maps maps(material, options, data);
          return pages::OrderSheet({at.Situation.Game, power, address}, maps);
        },
        model::ProgramDirectory());
    DeliverBytes(console, at.Paths.Output, page, at.Paths.Existing);
    return true;
  });
}

}  // namespace

const Command SheetCommand{
    .Name = "sheet",
    .Summary = "makes a web page on which players enter their orders",
    .Takes = Games::One,
    .Options = Options,
    .Examples = Examples,
    .Undrawn = "not here",
    .OutputName = "PAGE",
    .Execute = Execute,
};

}  // namespace orb::cli
