#include "pages/season_page.h"

#include "cli/commands.h"
#include "cli/delivery.h"
#include "cli/games.h"
#include "cli/orders_source.h"
#include "model/files.h"
#include "render/map_module.h"

#include <array>
#include <utility>

namespace orb::cli {
namespace {

constexpr std::array Options{OptionId::Orders,    OptionId::Loose,  OptionId::AcceptDoubtful,
                             OptionId::Rules,     OptionId::Mode,   OptionId::Yes,
                             OptionId::FilesFrom, OptionId::Output, OptionId::NoClobber};

constexpr auto Examples = std::to_array<Example>({
    {"the season that these orders make", "publish --orders s01.txt -o spring.html league_s01.orb"},
    {"a whole game from its files", "publish -o league.html league_*.orb"},
});

/// Adds a game with its orders; false where a question about them was answered No.
bool AddSource(const CommandLine& line, Console& console, OrdersSource& orders, GameAtWork& at,
               std::vector<pages::Source>& sources) {
  const bool hasOrders = line.Has(OptionId::Orders);
  // A finished season takes none; the file of its beginning has them.
  if (hasOrders && model::HasOrders(at.Situation.Game.Stage)) {
    const auto leftOut = orders.Take(at.Situation, at.Paths, at.Messages);
    if (!session::GoOnWithout(leftOut, at.Messages)) {
      SayAbandoned(console, at, "published");
      return false;
    }
  }
  sources.push_back({std::move(at.Situation), hasOrders});
  return true;
}

int Execute(const CommandLine& line, Console& console) {
  const session::Rules rules = RulesOf(line);
  const settings::MapOptions options{ModeOf(line, "colour"), false, true, true};
  const std::filesystem::path data = DataDirectory(line);
  const std::vector<GamePaths> plan = PlanOneOutput(line);
  OrdersSource orders(line);
  std::vector<pages::Source> sources;
  const int status = ForEachGame(line, console, plan, [&](GameAtWork& at) {
    at.Situation.Rules = rules;
    return AddSource(line, console, orders, at, sources);
  });
  // A page without one of the games would look as if it were whole.
  if (status != ExitDone || plan.empty()) return status;
  const std::filesystem::path& output = plan.front().Output;
  const bool done = Attempt(console, output.string(), [&] {
    ExpectNothingToKeep(plan.front());
    const std::vector<pages::Season> seasons = pages::SeasonsOf(std::move(sources));
    const std::string page = render::WithSvgMaterial(
        [&](render::SvgMaterial& material) {
          pages::Maps maps(material, options, data);
          return pages::SeasonPage(seasons, maps);
        },
        model::ProgramDirectory());
    DeliverBytes(console, output, page, plan.front().Existing);
    return true;
  });
  return done ? ExitDone : ExitRefused;
}

}  // namespace

const Command PublishCommand{
    .Name = "publish",
    .Summary = "makes a web page of a season or a whole game: maps, orders, report",
    .Takes = Games::Several,
    .Options = Options,
    .Examples = Examples,
    .Undrawn = "not here",
    .OutputName = "PAGE",
    .Execute = Execute,
};

}  // namespace orb::cli
