#include "colour/colour_vision.h"
#include "colour/qt/colours.h"
#include "model/lookups.h"
#include "render/hit_map.h"
#include "render/map_view.h"
#include "render/qt/map_file.h"
#include "render/tinting.h"
#include "support/boards.h"
#include "support/directories.h"

#include <QImage>
#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <functional>
#include <map>
#include <set>
#include <string>
#include <utility>
#include <vector>

namespace orb::tests {
namespace {

using colour::Vision;
using settings::MapMode;

model::Colour ColourOf(QRgb rgb) {
  return colour::ToColour(QColor(rgb));
}

/// The contrast of two colours as WCAG defines it, 1..21.
double Contrast(model::Colour a, model::Colour b) {
  const auto luminance = [](model::Colour colour) {
    const double l = colour::Seen(colour, Vision::Normal).L;
    return l > 8 ? std::pow((l + 16) / 116, 3) : l * 27 / 24389;
  };
  const auto [least, most] = std::minmax({luminance(a) + 0.05, luminance(b) + 0.05});
  return most / least;
}

/// The colours that the real map has of a mode, by what they are of: the tints and the four colours
/// that cover most of the seas, which are the open sea and the belts along the shores.
struct Ground {
  render::TintColourTable Tints;
  std::vector<QRgb> Seas;

  explicit Ground(MapMode mode) {
    QImage picture =
        QImage(QString::fromStdString(render::BackgroundFile(DataDirectory(), mode).string()))
            .convertToFormat(QImage::Format_RGB32);
    const render::HitMap hits = render::LoadHitMap(DataDirectory(), *RealMap(), 1);
    const render::Tinting tinting =
        render::TintByOwner(EmptyBoard("Spring", "moves"), DataDirectory(), mode);
    auto* pixels = reinterpret_cast<std::uint32_t*>(picture.bits());
    const auto count = static_cast<std::size_t>(picture.sizeInBytes()) / sizeof(std::uint32_t);
    Tints =
        render::TintColours({{pixels, count}, picture.width(), picture.height()}, hits, tinting);
    std::map<QRgb, int> counts;
    for (int y = 0; y < picture.height(); y += 2) {
      for (int x = 0; x < picture.width(); x += 2) {
        const int row = hits.RowAt(x, y);
        const bool isSea =
            row != 0 && tinting.Printed[static_cast<std::size_t>(row - 1)] == render::NoTint;
        if (isSea) ++counts[picture.pixel(x, y)];
      }
    }
    std::vector<std::pair<int, QRgb>> sorted;
    sorted.reserve(counts.size());
    for (const auto& [colour, often] : counts)
      sorted.emplace_back(often, colour);
    std::ranges::sort(sorted, std::greater());
    for (std::size_t i = 0; i < 4; ++i)
      Seas.push_back(sorted.at(i).second);
  }
};

TEST(Tints, AreApartForEveryEye) {
  const Ground ground(MapMode::Colour);
  std::vector<QRgb> colours(ground.Tints.begin(), ground.Tints.end());
  for (std::size_t i = 0; i < colours.size(); ++i) {
    // Any two tints can touch where they show the owners.
    std::vector<QRgb> others(colours.begin() + static_cast<std::ptrdiff_t>(i) + 1, colours.end());
    others.insert(others.end(), ground.Seas.begin(), ground.Seas.end());
    for (const QRgb other : others) {
      for (const Vision eyes : {Vision::Normal, Vision::NoRed, Vision::NoGreen, Vision::NoBlue}) {
        EXPECT_GE(colour::Difference(colour::Seen(ColourOf(colours[i]), eyes),
                                     colour::Seen(ColourOf(other), eyes)),
                  eyes == Vision::Normal ? 10 : 6)
            << QColor(colours[i]).name().toStdString() << QColor(other).name().toStdString()
            << static_cast<int>(eyes);
      }
    }
  }
}

TEST(Tints, LetTheirUnitsAndLabelsStandOut) {
  const Ground ground(MapMode::Colour);
  const model::CountryTable countries = model::FixedCountries();
  for (int power = 1; power <= model::CountryCount; ++power) {
    const model::Colour tint = ColourOf(ground.Tints.at(static_cast<std::size_t>(power)));
    const double difference = colour::Difference(
        colour::Seen(tint, Vision::Normal), colour::Seen(countries[power].Colour, Vision::Normal));
    EXPECT_TRUE(difference >= 20 || Contrast(tint, countries[power].TextColour) >= 3)
        << countries[power].Name;
    EXPECT_GE(Contrast(tint, 0), 4.5) << countries[power].Name;
  }
}

TEST(Tints, ShowTheOwnerInEveryMode) {
  render::PictureCache pictures;
  for (const MapMode mode :
       {MapMode::Colour3D, MapMode::Colour, MapMode::Grey, MapMode::BlackWhite}) {
    const Ground ground(mode);
    std::set<std::string> looks;
    for (int owner = 0; owner <= model::CountryCount; ++owner) {
      model::GameState game = EmptyBoard("Spring", "moves");
      Live(game, "Mun").Owner = model::PowerName(owner);
      settings::MapOptions options{mode};
      options.TintByOwner = true;
      const QImage image = render::MapImage(game, options, DataDirectory(), 1000, pictures);
      EXPECT_EQ(pictures.Picture(render::BackgroundFile(DataDirectory(), mode)).width(), 2000);
      const model::Province& place = model::PlaceOf(*game.Map, "Mun");
      const QPoint middle(static_cast<int>(place.UnitX * 1000),
                          static_cast<int>(place.UnitY * static_cast<float>(image.height())));
      std::string look;
      for (int i = 0; i < 64; ++i)
        look += QColor(image.pixel(middle + QPoint(i % 8, i / 8))).name().toStdString();
      EXPECT_TRUE(looks.insert(look).second) << "another owner looks the same: " << owner;
      if (mode == MapMode::BlackWhite) continue;
      EXPECT_EQ(image.pixel(middle), ground.Tints.at(static_cast<std::size_t>(owner))) << owner;
    }
  }
}

}  // namespace
}  // namespace orb::tests
