#include "cli/commands.h"
#include "cli/delivery.h"
#include "cli/games.h"
#include "cli/orders_source.h"
#include "model/files.h"
#include "render/map_module.h"
#include "session/queries.h"
#include "settings/map_options.h"

#include <charconv>

namespace orb::cli {
namespace {

constexpr std::array Options{OptionId::Orders,  OptionId::Mode,         OptionId::CentreCount,
                             OptionId::Borders, OptionId::CentreOwners, OptionId::TintByOwner,
                             OptionId::Letters, OptionId::Width,        OptionId::Format,
                             OptionId::Output,  OptionId::NoClobber};

constexpr Example Examples[] = {
    {"the map as a picture for the next mail", "map --width 1200 -o league.png league.orb"},
    {"with arrows for the orders of a file", "map --orders s01.txt -o orders.svg league.orb"},
    {"handed on to another program", "map --format pdf -o - league.orb | lp"},
};

render::MapFormat Format(const CommandLine& line, const std::filesystem::path& picture) {
  if (line.Has(OptionId::Format)) {
    const std::string& name = *line.Value(OptionId::Format);
    const auto format = render::FormatOf("picture." + name);
    if (format) return *format;
    throw UsageError("map: The format is one of bmp, png, svg and pdf, not \"" + name + "\".");
  }
  if (picture == StandardOutput) {
    throw UsageError("map: A picture on the standard output needs --format.");
  }
  const auto format = render::FormatOf(picture);
  if (!format) throw UsageError("map: The picture's name must end in .bmp, .png, .svg or .pdf.");
  return *format;
}

int PixelWidth(const CommandLine& line) {
  if (!line.Has(OptionId::Width)) return 0;
  const std::string& text = *line.Value(OptionId::Width);
  int width = 0;
  const auto [rest, error] = std::from_chars(text.data(), text.data() + text.size(), width);
  if (error != std::errc() || rest != text.data() + text.size() || width < 1 ||
      width > render::MaxPixelWidth) {
    throw UsageError("map: The width is a number of pixels from 1 to " +
                     std::to_string(render::MaxPixelWidth) + ", not \"" + text + "\".");
  }
  return width;
}

/// The orders to be drawn, taken from the orders file. This is done only when --orders is given: by
/// default not even the orders of the game file are drawn, since maps go to all players.
std::vector<orders::OrderOutcome> OrdersToDraw(session::Situation& situation, OrdersSource& source,
                                               const GamePaths& paths, model::Messages& messages) {
  session::ExpectOrdersToDraw(situation);
  source.Take(situation, paths, messages);
  return session::EnteredOrders(situation);
}

int Execute(const CommandLine& line, Console& console) {
  // Everything that can be wrong with the command line is looked at before a game is read.
  const std::filesystem::path picture = *line.Value(OptionId::Output);
  const render::MapFormat format = Format(line, picture);
  if (picture == StandardOutput && console.IsTerminal()) {
    throw UsageError("map: A picture would only garble the terminal: -o names a file.");
  }
  const int width = PixelWidth(line);
  const settings::MapOptions options{
      ModeOf(line, "colour3d"),        line.Has(OptionId::CentreCount),
      line.Has(OptionId::Borders),     line.Has(OptionId::CentreOwners),
      line.Has(OptionId::TintByOwner), line.Has(OptionId::Letters)};
  const std::filesystem::path data = DataDirectory(line);
  OrdersSource source(line);
  return ForEachGame(line, console, PlanPaths(line), [&](GameAtWork& at) {
    const auto drawn = line.Has(OptionId::Orders)
                           ? OrdersToDraw(at.Situation, source, at.Paths, at.Messages)
                           : std::vector<orders::OrderOutcome>{};
    DeliverBytes(console, at.Paths.Output,
                 render::DrawMap({at.Situation.Game, options, data, width, format, drawn},
                                 model::ProgramDirectory()),
                 at.Paths.Existing);
    return true;
  });
}

}  // namespace

settings::MapMode ModeOf(const CommandLine& line, std::string_view usual) {
  const std::string mode = line.Value(OptionId::Mode).value_or(std::string(usual));
  if (const auto known = settings::MapModeOf(mode)) return *known;
  throw UsageError(std::string(line.Verb->Name) +
                   ": The mode is one of colour3d, colour, grey and bw, not \"" + mode + "\".");
}

const Command MapCommand{
    .Name = "map",
    .Summary = "draws the map; the picture's format follows its extension",
    .Takes = Games::One,
    .Options = Options,
    .Examples = Examples,
    .OutputName = "PICTURE",
    .Execute = Execute,
};

}  // namespace orb::cli
