#include "render/qt/animated_picture.h"

#include "model/errors.h"
#include "model/files.h"
#include "model/game_file.h"
#include "render/qt/map_file.h"
#include "render/qt/palette.h"
#include "render/qt/replay_picture.h"
#include "settings/map_options.h"
#include "support/boards.h"
#include "support/directories.h"

#include <QBuffer>
#include <QImageReader>
#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <string>
#include <vector>

namespace orb::tests {
namespace {

namespace fs = std::filesystem;
using history::Replay;
using model::GameState;
using settings::MapOptions;

constexpr MapOptions AllShown = {settings::MapMode::Colour3D, true, true, true};

/// The situations of the example game in their order.
std::vector<GameState> ExampleGame() {
  std::vector<fs::path> files;
  for (const auto& entry : fs::directory_iterator(fs::path(ORB_SOURCE_DIR) / "examples")) {
    if (entry.path().extension() == ".orb") files.push_back(entry.path());
  }
  std::sort(files.begin(), files.end());
  std::vector<GameState> games;
  for (const fs::path& file : files) {
    games.push_back(model::EmptyGame(RealMap()));
    model::ParseGameFile(model::ReadFile(file), file.string(), games.back());
  }
  return games;
}

std::vector<render::AnimationFrame> Decoded(const std::string& bytes) {
  QByteArray data = QByteArray::fromStdString(bytes);
  QBuffer buffer(&data);
  QImageReader reader(&buffer, "gif");
  EXPECT_EQ(reader.loopCount(), -1) << "for ever";
  std::vector<render::AnimationFrame> frames;
  for (QImage picture; reader.read(&picture);)
    frames.push_back({picture.convertToFormat(QImage::Format_RGB32), reader.nextImageDelay() / 10});
  return frames;
}

TEST(ReplayPicture, BeginsAndEndsAsTheMapIsDrawn) {
  render::PictureCache pictures;
  const std::vector<GameState> games = ExampleGame();
  ASSERT_GT(games.size(), 10U);
  for (std::size_t i = 1; i < games.size(); ++i) {
    const auto image = [&](const GameState& game) {
      return render::MapImage(game, AllShown, DataDirectory(), 400, pictures);
    };
    const Replay replay = history::ReplayBetween(games[i - 1], games[i]);
    const render::ReplayPicture picture(replay, AllShown, DataDirectory(), 400, pictures);
    EXPECT_EQ(picture.Frame(0), image(games[i - 1])) << i;
    if (games[i - 1].Stage == model::Stage::Retreats) continue;  // its marks go with its units
    GameState moved = games[i - 1];
    moved.Units = games[i].Units;
    // The counts stay those of the start.
    const MapOptions uncounted = {AllShown.Mode, false, true, true};
    const render::ReplayPicture plain(replay, uncounted, DataDirectory(), 400, pictures);
    EXPECT_EQ(plain.Frame(1), render::MapImage(moved, uncounted, DataDirectory(), 400, pictures))
        << i;
  }
}

TEST(Palette, AColourIsTheShadeOfMostPixelsOrElseTheMean) {
  QImage picture(10, 1, QImage::Format_RGB32);
  const auto chosen = [&](int dark, std::size_t count) {
    for (int x = 0; x < 10; ++x)
      picture.setPixel(x, 0, x < dark ? qRgb(0, 20, 0) : qRgb(200, 20, 0));
    return render::ChooseColours({picture}, count);
  };
  EXPECT_EQ(chosen(3, 1), std::vector{qRgb(200, 20, 0)});
  EXPECT_EQ(chosen(5, 1), std::vector{qRgb(100, 20, 0)});
  EXPECT_EQ(chosen(3, 2), (std::vector{qRgb(0, 20, 0), qRgb(200, 20, 0)}));
}

TEST(AnimatedGif, HoldsTheFramesAndTheirTimes) {
  QImage picture(40, 30, QImage::Format_RGB32);
  picture.fill(Qt::white);
  std::vector<render::AnimationFrame> frames = {{picture, 5}, {picture, 7}};
  for (const QPoint point : {QPoint(3, 4), QPoint(39, 29), QPoint(0, 0)}) {
    picture.setPixelColor(point, Qt::red);
    frames.push_back({picture, 5});
  }
  picture.fill(Qt::white);
  frames.push_back({picture, 90});
  auto next = frames.begin();
  const std::string bytes = render::AnimatedGif(
      [&] { return next == frames.end() ? std::nullopt : std::optional(*next++); },
      {qRgb(255, 255, 255), qRgb(250, 0, 0), qRgb(255, 0, 0)});
  const auto decoded = Decoded(bytes);
  ASSERT_EQ(decoded.size(), 5U) << "equal frames are one";
  for (std::size_t i = 0; i < decoded.size(); ++i)
    EXPECT_EQ(decoded[i].Picture, frames[i + 1].Picture) << i;
  EXPECT_THROW(render::AnimatedGif([] { return std::nullopt; }, {}), model::FileError);
}

/// The greatest mean difference of a colour part, over the pixels of both pictures.
double MeanDifference(const QImage& a, const QImage& b) {
  double sum = 0;
  for (int i = 0; i < a.width() * a.height(); ++i) {
    const QColor left = a.pixelColor(i % a.width(), i / a.width());
    const QColor right = b.pixelColor(i % a.width(), i / a.width());
    sum += std::abs(left.red() - right.red()) + std::abs(left.green() - right.green()) +
           std::abs(left.blue() - right.blue());
  }
  return sum / (3.0 * a.width() * a.height());
}

TEST(SaveAnimation, WritesTheWholeOrNothing) {
  const std::vector<GameState> games = ExampleGame();
  const std::vector<Replay> replays = {history::ReplayBetween(games[4], games[5]),
                                       history::ReplayBetween(games[5], games[6])};
  const TemporaryDirectory directory;
  const fs::path file = directory.Write("a.gif", "precious");
  render::PictureCache pictures;
  const auto save = [&](const std::vector<Replay>& shown, const render::FrameProgress& progress) {
    return render::SaveAnimation(shown, {}, DataDirectory(), 300, pictures, file, progress);
  };
  for (const bool atOnce : {true, false}) {
    EXPECT_FALSE(save(replays, [&](int done, int all) { return !atOnce && done < all; }));
    EXPECT_EQ(model::ReadFile(file), "precious");
  }
  EXPECT_THROW(save({}, {}), model::FileError);
  EXPECT_EQ(directory.EntryCount(), 1);
  int frames = 0;
  EXPECT_TRUE(save(replays, [&](int done, int all) {
    EXPECT_EQ(done, ++frames);
    EXPECT_LE(done, all);
    return true;
  }));
  const auto decoded = Decoded(model::ReadFile(file));
  EXPECT_GT(decoded.size(), 20U);
  const auto image = [&](const GameState& game) {
    return render::MapImage(game, {}, DataDirectory(), 300, pictures);
  };
  EXPECT_LT(MeanDifference(decoded.front().Picture, image(games[4])), 1.0);
  EXPECT_LT(MeanDifference(decoded.back().Picture, image(games[6])), 1.0);
}

}  // namespace
}  // namespace orb::tests
