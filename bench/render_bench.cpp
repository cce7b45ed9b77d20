#include "model/files.h"
#include "model/game_file.h"
#include "model/map_files.h"
#include "model/new_game.h"
#include "orders/entered_orders.h"
#include "render/map_view.h"
#include "render/qt/map_file.h"
#include "render/qt/painter_surface.h"
#include "render/qt/replay_picture.h"
#include "settings/map_options.h"

#include <QGuiApplication>
#include <QPainter>
#include <benchmark/benchmark.h>

#include <stdexcept>

namespace orb {
namespace {

const std::filesystem::path DataDirectory = ORB_SOURCE_DIR "/data";

/// The board at its fullest: every location but the coasts holds a unit up to the bound, every
/// centre has an owner, and some units are dislodged.
model::GameState FullBoard() {
  model::GameState game = model::EmptyGame(model::LoadMap(DataDirectory));
  model::NewGame(game, DataDirectory);
  game.Stage = model::Stage::Retreats;
  game.Units.SetCount(0);
  for (int row = 1; row <= game.Provinces.Count(); ++row) {
    const model::Country& power = game.Countries[row % model::CountryCount + 1];
    game.Provinces[row].Owner = power.Abbreviation;
    game.Provinces[row].Uncontested = row % 3 != 0;
    const std::string& name = game.Map->Provinces[row].Name;
    if (name.size() != 3 || game.Units.Count() == model::UnitBound) continue;
    model::Unit& unit = game.Units.Append();
    unit = {};
    unit.Power = power.Abbreviation;
    unit.UnitType.assign(1, row % 2 == 0 ? 'A' : 'F');
    unit.Location = name;
    if (row % 5 == 0) unit.Status = model::Dislodged;
  }
  return game;
}

/// A season of 34 units whose orders are in the list.
model::GameState OrderedBoard() {
  model::GameState game = model::EmptyGame(model::LoadMap(DataDirectory));
  const std::filesystem::path file = ORB_SOURCE_DIR "/bench/data/midgame.orb";
  if (model::ParseGameFile(model::ReadFile(file), file, game)) throw std::runtime_error("place");
  return game;
}

/// Drawing on an image of the given width, as the window does after every change, with the orders
/// of the list if there are any.
void DrawMap(benchmark::State& state, settings::MapMode mode, const model::GameState& game) {
  const settings::MapOptions options{mode, true, true, true};
  const std::vector<orders::OrderOutcome> orders = orders::EnteredOrders(game);
  render::PictureCache pictures;
  const auto width = static_cast<int>(state.range(0));
  QImage image = render::MapImage(game, options, DataDirectory, width, pictures);
  const QSizeF twips =
      render::NaturalSize(pictures.Picture(render::BackgroundFile(DataDirectory, mode)));
  while (state.KeepRunning()) {
    QPainter painter(&image);
    render::PainterSurface surface(painter, QRectF(image.rect()), twips, pictures);
    render::RenderMap(game, options, DataDirectory, surface, orders);
  }
}

/// The same in the tints of the owners, after every centre has changed hands.
void DrawTinted(benchmark::State& state, settings::MapMode mode) {
  model::GameState game = FullBoard();
  settings::MapOptions options{mode, true, true, true};
  options.TintByOwner = state.range(0) != 0;
  render::PictureCache pictures;
  QImage image = render::MapImage(game, options, DataDirectory, 1000, pictures);
  const QSizeF twips =
      render::NaturalSize(pictures.Picture(render::BackgroundFile(DataDirectory, mode)));
  int round = 0;
  while (state.KeepRunning()) {
    ++round;
    for (int row = 1; row <= game.Provinces.Count(); ++row)
      game.Provinces[row].Owner =
          game.Countries[(row + round) % model::CountryCount + 1].Abbreviation;
    QPainter painter(&image);
    render::PainterSurface surface(painter, QRectF(image.rect()), twips, pictures);
    render::RenderMap(game, options, DataDirectory, surface, {});
  }
}

/// A moment of a season in which every unit of the board moves, the still map painted from memory
/// as the window does it. The range is the width in pixels.
void DrawFrame(benchmark::State& state) {
  model::GameState game = FullBoard();
  game.Stage = model::Stage::Finished;
  const int count = game.Units.Count();
  for (int i = 1; i <= count; ++i) {
    game.Units[i].Status.clear();
    game.Units[i].PreviousLocation = game.Units[i % count + 1].Location;
  }
  render::PictureCache pictures;
  const auto width = static_cast<int>(state.range(0));
  const render::ReplayPicture picture(history::SeasonReplay(game),
                                      {settings::MapMode::Colour3D, true, true, true},
                                      DataDirectory, width, pictures);
  QImage image = picture.Still().copy();
  double progress = 0;
  while (state.KeepRunning()) {
    progress = progress < 1 ? progress + 0.01 : 0;
    QPainter painter(&image);
    painter.drawImage(0, 0, picture.Still());
    picture.PaintMoving(painter, QRectF(image.rect()), progress);
  }
}

BENCHMARK_CAPTURE(DrawMap, Colour3D, settings::MapMode::Colour3D, FullBoard())
    ->Arg(1000)
    ->Arg(2000)
    ->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(DrawMap, Orders, settings::MapMode::Colour3D, OrderedBoard())
    ->Arg(1000)
    ->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(DrawMap, BlackWhite, settings::MapMode::BlackWhite, FullBoard())
    ->Arg(1000)
    ->Arg(2000)
    ->Unit(benchmark::kMillisecond);
// 1000 pixels wide, without the tints and with them.
BENCHMARK_CAPTURE(DrawTinted, Colour3D, settings::MapMode::Colour3D)
    ->Arg(0)
    ->Arg(1)
    ->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(DrawTinted, Grey, settings::MapMode::Grey)
    ->Arg(0)
    ->Arg(1)
    ->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(DrawTinted, BlackWhite, settings::MapMode::BlackWhite)
    ->Arg(0)
    ->Arg(1)
    ->Unit(benchmark::kMillisecond);
BENCHMARK(DrawFrame)->Arg(1000)->Arg(2000)->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace orb

int main(int count, char** arguments) {
  qputenv("QT_QPA_PLATFORM", "offscreen");
  const QGuiApplication application(count, arguments);
  benchmark::Initialize(&count, arguments);
  benchmark::RunSpecifiedBenchmarks();
  return 0;
}
