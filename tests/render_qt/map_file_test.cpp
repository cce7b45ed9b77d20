#include "render/qt/map_file.h"

#include "colour/qt/colours.h"
#include "model/errors.h"
#include "model/files.h"
#include "model/map_files.h"
#include "model/new_game.h"
#include "settings/map_options.h"
#include "support/boards.h"
#include "support/directories.h"

#include <QBuffer>
#include <QImage>
#include <QPainter>
#include <QSvgRenderer>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <filesystem>
#include <regex>
#include <set>
#include <string>
#include <utility>
#include <vector>

namespace orb::tests {
namespace {

namespace fs = std::filesystem;
using render::MapFormat;
using render::PictureCache;
using settings::MapMode;
using settings::MapOptions;
using testing::AllOf;
using testing::HasSubstr;
using testing::StartsWith;

/// A background of one colour, 400 by 320 pixels at 192 dpi: 3000 by 2400 twips.
std::string Background(QColor colour) {
  QImage picture(400, 320, QImage::Format_RGB32);
  picture.fill(colour);
  picture.setDotsPerMeterX(7559);
  picture.setDotsPerMeterY(7559);
  QBuffer buffer;
  buffer.open(QIODevice::WriteOnly);
  picture.save(&buffer, "BMP");
  return buffer.data().toStdString();
}

/// A directory with a background, and a map of one centre in it, in the middle of the right half.
class MapFile : public ::testing::Test {
 protected:
  MapFile() {
    directory_.Write("map.bmp", Background(Qt::white));
    directory_.Write("mapbw.bmp", Background(Qt::white));
    auto map = std::make_shared<model::Map>();
    model::LoadProvinces("Lon,,-1,.5,.75,.75,.5,London\r\n", "prov.dat", *map);
    game_ = model::EmptyGame(map);
    game_.Stage = model::Stage::Moves;
    game_.Units.Append({"ENG", "A", "Lon", {}, {}, {}});
  }

  QImage Image(int width, const MapOptions& options = {MapMode::Colour}) {
    return render::MapImage(game_, options, directory_.Path(), width, pictures_);
  }

  std::string Saved(MapFormat format, int width = 0) {
    return render::MapBytes(game_, {MapMode::Colour}, directory_.Path(), width, pictures_, format);
  }

  QColor Fill() const { return colour::ToQColor(game_.Countries[1].Colour); }

  TemporaryDirectory directory_;
  model::GameState game_;
  PictureCache pictures_;
};

/// How many pixels of an image have just this colour.
int CountPixels(const QImage& image, QColor colour) {
  int count = 0;
  for (int i = 0; i < image.width() * image.height(); ++i)
    count += image.pixelColor(i % image.width(), i / image.width()) == colour ? 1 : 0;
  return count;
}

TEST_F(MapFile, WidthScalesTheDrawingAndSymbolsShrinkLess) {
  // The disc of 115 twips radius without its outline, at 15 twips a pixel of half the own width.
  const double area = 3.14159 * (115 - 7.5) * (115 - 7.5) / (15 * 15);
  const std::vector<std::pair<int, double>> cases = {{100, 0.6}, {150, 0.8}, {170, 0.85},
                                                     {200, 1},   {400, 2},   {1200, 6}};
  for (const auto& [width, scale] : cases) {
    const QImage image = Image(width);
    EXPECT_EQ(image.size(), QSize(width, width * 4 / 5));
    const double pixels = area * scale * scale;
    // Those on the disc's edge are blended with its outline.
    EXPECT_NEAR(CountPixels(image, Fill()), pixels - 1.5 * std::sqrt(pixels), 0.1 * pixels + 6);
    EXPECT_EQ(image.pixelColor(width * 3 / 4, width * 2 / 5), Fill());
    EXPECT_EQ(image.pixelColor(width * 9 / 10, width * 2 / 5), QColor(Qt::white));
  }
  EXPECT_EQ(Image(0).size(), QSize(400, 320));
  EXPECT_EQ(Image(0), Image(400));
  EXPECT_THROW(Image(-1), model::FileError);
  EXPECT_THROW(Image(render::MaxPixelWidth + 1), model::FileError);
}

TEST_F(MapFile, TextStandsWhereItIsMeasured) {
  game_.Units.SetCount(0);
  game_.Title.clear();
  game_.Season.clear();
  const QImage image = Image(400);
  // The label about (200, 240): its ink lies in the upper half of its line box and 50 wide.
  int left = 400;
  int right = 0;
  for (int x = 100; x < 300; ++x) {
    for (int y = 225; y < 249; ++y) {
      if (image.pixelColor(x, y).lightness() > 100) continue;
      left = std::min(left, x);
      right = std::max(right, x);
    }
  }
  EXPECT_NEAR((left + right) / 2.0, 200, 3);
  EXPECT_GT(right - left, 25);
  EXPECT_LT(right - left, 50);
}

TEST_F(MapFile, AChangedBackgroundIsSeenAndAMissingOneNoticed) {
  EXPECT_EQ(Image(400).pixelColor(390, 310), QColor(Qt::white));
  EXPECT_EQ(Image(200).pixelColor(190, 150), QColor(Qt::white));
  const fs::path file = directory_.Write("map.bmp", Background(Qt::cyan));
  fs::last_write_time(file, fs::last_write_time(file) + std::chrono::seconds(2));
  const auto read = pictures_.Picture(file).cacheKey();
  EXPECT_EQ(pictures_.Picture(file).cacheKey(), read) << "decoded again";
  EXPECT_EQ(Image(200).pixelColor(190, 150), QColor(Qt::cyan));
  EXPECT_EQ(Image(400).pixelColor(390, 310), QColor(Qt::cyan));
  fs::remove(file);
  EXPECT_THROW(Image(200), model::FileError);
  directory_.Write("map.bmp", "BM and nothing more");
  EXPECT_THROW(Image(200), model::FileError);
  // A header may ask for any size: here one whose rows run from top to bottom.
  std::string large = Background(Qt::white);
  large.replace(18, 8, std::string_view("\0\x50\0\0\0\xFC\xFF\xFF", 8));
  directory_.Write("map.bmp", large);
  EXPECT_THAT([&] { Image(200); },
              testing::ThrowsMessage<model::FileError>(HasSubstr("20480 by 1024")));
  EXPECT_NO_THROW(Image(200, {MapMode::BlackWhite}));
  EXPECT_THROW(Image(200, {MapMode::Grey}), model::FileError);
}

TEST_F(MapFile, EveryFormatHoldsTheMap) {
  const std::string bmp = Saved(MapFormat::Bmp);
  EXPECT_EQ(bmp.substr(30, 4), std::string(4, '\0')) << "compressed";
  const QImage image = QImage::fromData(QByteArray::fromStdString(bmp), "BMP");
  EXPECT_EQ(image.convertToFormat(QImage::Format_RGB32), Image(400));
  EXPECT_NEAR(image.dotsPerMeterX(), 7559, 1);
  const QImage png = QImage::fromData(QByteArray::fromStdString(Saved(MapFormat::Png, 300)), "PNG");
  EXPECT_EQ(png.convertToFormat(QImage::Format_RGB32), Image(300));
  // 400 pixels at 192 dpi are 150 points; the drawing fills the page.
  EXPECT_THAT(Saved(MapFormat::Pdf),
              AllOf(StartsWith("%PDF-"), HasSubstr("/MediaBox [0 0 150.000000 120.000000]"),
                    HasSubstr("/Width 400\n/Height 320\n")));
  EXPECT_THAT(Saved(MapFormat::Svg, 800),
              AllOf(HasSubstr("viewBox=\"0 0 800 640\""), HasSubstr("width=\"105.8mm\""),
                    HasSubstr("<image "), HasSubstr(Fill().name().toStdString())));
}

TEST_F(MapFile, ATextIsNoMarkupInAPicture) {
  game_.Title = "Tom & </title><script>\x01\x80\x81";
  game_.Provinces[1].Owner = "\"<b>'";
  EXPECT_THAT(Saved(MapFormat::Svg),
              AllOf(HasSubstr("<title>Tom &amp; &lt;/title&gt;&lt;script&gt;?\u20AC?</title>"),
                    HasSubstr("<title>London (&quot;&lt;b&gt;&#39;)</title>")));
}

TEST_F(MapFile, AUnitNowhereIsNotPassedOver) {
  game_.Units[1].Location = "Xyz";
  for (const MapFormat format : {MapFormat::Bmp, MapFormat::Png, MapFormat::Svg, MapFormat::Pdf})
    EXPECT_THROW(Saved(format), model::IndexOutOfRange);
}

TEST(RealMapPicture, UnitsOfTheStartStandInTheirColours) {
  model::GameState game = model::EmptyGame(RealMap());
  model::NewGame(game, DataDirectory());
  PictureCache pictures;
  const QImage image = render::MapImage(game, {MapMode::Colour}, DataDirectory(), 1000, pictures);
  EXPECT_NEAR(image.height(), 1000 / 1.2, 1);
  for (const model::Unit& unit : game.Units) {
    const auto& place = game.Map->Provinces[model::FindProvince(*game.Map, unit.Location)];
    // A ship's hull lies a little below its point.
    const QPoint point(static_cast<int>(place.UnitX * 1000),
                       static_cast<int>(place.UnitY * static_cast<float>(image.height())) +
                           (unit.UnitType == "F" ? 2 : 0));
    EXPECT_EQ(image.pixelColor(point),
              colour::ToQColor(game.Countries[model::FindCountry(unit.Power)].Colour))
        << unit.Location;
  }
  for (const MapMode mode : {MapMode::Grey, MapMode::BlackWhite}) {
    EXPECT_TRUE(render::MapImage(game, {mode, true, false, true}, DataDirectory(), 500, pictures)
                    .isGrayscale());
  }
}

/// How many pixels of two pictures differ plainly when they are seen from further away: the places
/// at which letters are laid on pixels may differ a little.
int PixelsApart(const QImage& one, const QImage& other) {
  const auto small = [](const QImage& picture) {
    return picture.scaledToWidth(500, Qt::SmoothTransformation);
  };
  const QImage first = small(one);
  const QImage second = small(other);
  int apart = 0;
  for (int i = 0; i < first.width() * first.height(); ++i) {
    const QPoint at(i % first.width(), i / first.width());
    const QColor a = first.pixelColor(at);
    const QColor b = second.pixelColor(at);
    apart += std::abs(a.red() - b.red()) + std::abs(a.green() - b.green()) +
                         std::abs(a.blue() - b.blue()) >
                     90
                 ? 1
                 : 0;
  }
  return apart;
}

TEST(RealMapPicture, AVectorFileShowsTheSameAndNamesItsParts) {
  model::GameState game = model::EmptyGame(RealMap());
  model::NewGame(game, DataDirectory());
  game.Units[1].Status = model::Dislodged;
  using orders::OrderKind;
  using orders::Outcome;
  const std::vector<orders::OrderOutcome> orders = {
      {"FRA", "A", "Par", OrderKind::Move, "", "Bur", false, Outcome::Failed},
      {"FRA", "A", "Mar", OrderKind::Support, "Par", "Bur", false, Outcome::Cut},
      {"RUS", "F", "Stp.s", OrderKind::Hold, "", "", false, Outcome::Succeeded}};
  PictureCache pictures;
  const MapOptions options{MapMode::Colour3D, true, true, true};
  const std::string svg =
      render::MapBytes(game, options, DataDirectory(), 0, pictures, MapFormat::Svg, orders);
  EXPECT_LE(svg.size(), 900'000U);

  const QImage expected = render::MapImage(game, options, DataDirectory(), 0, pictures, orders);
  QImage shown(expected.size(), QImage::Format_RGB32);
  QPainter painter(&shown);
  painter.setRenderHint(QPainter::SmoothPixmapTransform);
  QSvgRenderer(QByteArray::fromStdString(svg)).render(&painter);
  EXPECT_LE(PixelsApart(expected, shown), 5);

  std::set<std::string> ids;
  const std::regex id("id=\"([^\"]*)\"");
  for (std::sregex_iterator at(svg.begin(), svg.end(), id); at != std::sregex_iterator(); ++at)
    EXPECT_TRUE(ids.insert((*at)[1]).second) << (*at)[1];
  for (const model::Province& province : game.Map->Provinces) {
    std::string name = "province-" + province.Name;
    std::replace(name.begin(), name.end(), '.', '-');
    EXPECT_EQ(ids.count(name), 1U) << name;
  }
  for (const char* part :
       {"id=\"unit-Lvp\" class=\"unit\"><title>ENG A(Lvp)</title>",
        "<title>ENG F(Lon), dislodged</title>", "<title>London (ENG)</title>",
        "id=\"order-FRA-Par\" class=\"order\"><title>FRA A(Par) - Bur: failed</title>",
        "<title>FRA A(Mar) S Par - Bur: cut</title>", "<title>RUS F(Stp.s) hold</title>"}) {
    EXPECT_THAT(svg, HasSubstr(part));
  }
}

TEST(MapFormats, FollowTheExtension) {
  const std::vector<std::pair<std::string, MapFormat>> cases{{"a/b.bmp", MapFormat::Bmp},
                                                             {"s01.PNG", MapFormat::Png},
                                                             {"x.tar.Svg", MapFormat::Svg},
                                                             {"x.pdf", MapFormat::Pdf}};
  for (const auto& [name, format] : cases)
    EXPECT_EQ(render::FormatOf(name), format) << name;
  for (const char* other : {"x", "x.jpg", ".bmp", "png", "x.bmp.", ""}) {
    EXPECT_FALSE(render::FormatOf(other).has_value()) << other;
  }
}

}  // namespace
}  // namespace orb::tests
