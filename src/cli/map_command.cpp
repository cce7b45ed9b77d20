#include "cli/commands.h"
#include "cli/delivery.h"
#include "cli/games.h"
#include "cli/orders_source.h"
#include "history/replay_sequence.h"
#include "model/files.h"
#include "model/seasons.h"
#include "render/map_module.h"
#include "session/queries.h"
#include "settings/map_options.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <utility>
#include <vector>

namespace orb::cli {
namespace {

constexpr std::array Options{OptionId::Orders,  OptionId::Mode,         OptionId::CentreCount,
                             OptionId::Borders, OptionId::CentreOwners, OptionId::TintByOwner,
                             OptionId::Letters, OptionId::Animate,      OptionId::Width,
                             OptionId::Format,  OptionId::Output,       OptionId::NoClobber};

constexpr auto Examples = std::to_array<Example>({
    {"the map as a picture for the next mail", "map --width 1200 -o league.png league.orb"},
    {"with arrows for the orders of a file", "map --orders s01.txt -o orders.svg league.orb"},
    {"what happened in a whole game", "map --animate -o league.gif league_*.orb"},
    {"handed on to another program", "map --format pdf -o - league.orb | lp"},
});

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

settings::MapOptions MapOptionsOf(const CommandLine& line) {
  return {ModeOf(line, "colour3d"),        line.Has(OptionId::CentreCount),
          line.Has(OptionId::Borders),     line.Has(OptionId::CentreOwners),
          line.Has(OptionId::TintByOwner), line.Has(OptionId::Letters)};
}

void ExpectPicture(const std::filesystem::path& picture, const Console& console) {
  if (picture == StandardOutput && console.IsTerminal()) {
    throw UsageError("map: A picture would only garble the terminal: -o names a file.");
  }
}

/// What happened in the season of one situation, or from the first of several to the last.
std::vector<history::Replay> ReplaysOf(const std::vector<session::Situation>& situations) {
  std::vector<history::ReplayPart> parts;
  if (situations.size() == 1) {
    parts.push_back(history::SeasonPart(situations[0].Game, situations[0].Outcomes));
  } else {
    std::vector<model::GameState> games;
    games.reserve(situations.size());
    for (const session::Situation& situation : situations)
      games.push_back(situation.Game);
    std::ranges::stable_sort(games, {}, model::PlaceInTime<model::GameState>);
    parts = history::ReplaySequence(games);
  }
  std::vector<history::Replay> replays;
  replays.reserve(parts.size());
  for (history::ReplayPart& part : parts)
    replays.push_back(std::move(part.Replay));
  return replays;
}

int Animate(const CommandLine& line, Console& console) {
  for (const auto& [option, name] :
       {std::pair(OptionId::Orders, "--orders"), {OptionId::Format, "--format"}}) {
    if (line.Has(option)) {
      throw UsageError(
          std::string("map: --animate and ").append(name).append(" cannot go together."));
    }
  }
  const std::filesystem::path output = *line.Value(OptionId::Output);
  ExpectPicture(output, console);
  if (output != StandardOutput && output.extension() != ".gif") {
    throw UsageError("map: The animation's name must end in .gif.");
  }
  const int width = PixelWidth(line);
  const settings::MapOptions options = MapOptionsOf(line);
  const std::filesystem::path data = DataDirectory(line);
  const std::vector<GamePaths> plan = PlanOneOutput(line);
  std::vector<session::Situation> situations;
  const int status = ForEachGame(line, console, plan, [&](GameAtWork& at) {
    situations.push_back(std::move(at.Situation));
    return true;
  });
  // An animation without one of the games would look as if it were whole.
  if (status != ExitDone || plan.empty()) return status;
  const bool done = Attempt(console, output.string(), [&] {
    ExpectNothingToKeep(plan.front());
    const std::vector<history::Replay> replays = ReplaysOf(situations);
    DeliverBytes(console, output,
                 render::DrawAnimation({replays, options, data, width}, model::ProgramDirectory()),
                 plan.front().Existing);
    return true;
  });
  return done ? ExitDone : ExitRefused;
}

int Execute(const CommandLine& line, Console& console) {
  if (line.Has(OptionId::Animate)) return Animate(line, console);
  // Everything that can be wrong with the command line is looked at before a game is read.
  const std::filesystem::path picture = *line.Value(OptionId::Output);
  const render::MapFormat format = Format(line, picture);
  ExpectPicture(picture, console);
  const int width = PixelWidth(line);
  const settings::MapOptions options = MapOptionsOf(line);
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
    .Undrawn = "not here",
    .OutputName = "PICTURE",
    .Execute = Execute,
};

}  // namespace orb::cli
