#include "colour/colour_vision.h"
#include "model/country.h"
#include "support/directories.h"

#include <QImage>
#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <vector>

namespace orb::tests {
namespace {

using colour::Difference;
using colour::Lab;
using colour::Seen;
using colour::Vision;

/// The contrast ratio of two colours as defined by WCAG for web pages, 1..21; text needs 4.5.
double Contrast(model::Colour a, model::Colour b) {
  const auto luminance = [](model::Colour colour) {
    // The lightness of CIE Lab, back on its linear scale.
    const double l = Seen(colour, Vision::Normal).L;
    return l > 8 ? std::pow((l + 16) / 116, 3) : l * 27 / 24389;
  };
  const double one = luminance(a) + 0.05;
  const double other = luminance(b) + 0.05;
  return std::max(one, other) / std::min(one, other);
}

// Some of the published pairs that check an implementation of CIEDE2000, and one that lies about
// the green end of the axis, where one part is 0.
TEST(ColourVision, DifferenceAgreesWithThePublishedPairs) {
  struct Pair {
    Lab A, B;
    double Difference;
  };
  const std::vector<Pair> pairs = {{{50, 2.6772, -79.7751}, {50, 0, -82.7485}, 2.0425},
                                   {{50, -1, 2}, {50, 0, 0}, 2.3669},
                                   {{50, 2.49, -0.001}, {50, -2.49, 0.0011}, 7.2195},
                                   {{50, -2.5, 0}, {50, -2.5, 1e-6}, 0},
                                   {{50, 2.5, 0}, {56, -27, -3}, 31.9030},
                                   {{2.0776, 0.0795, -1.1350}, {0.9033, -0.0636, -0.5514}, 0.9082}};
  for (const Pair& pair : pairs) {
    EXPECT_NEAR(Difference(pair.A, pair.B), pair.Difference, 5e-5);
  }
}

TEST(ColourVision, AMissingConeMakesAlikeWhatOtherEyesTellApart) {
  struct Pair {
    Vision Eyes;
    model::Colour A, B;
  };
  const std::vector<Pair> pairs = {
      {Vision::NoRed, model::Rgb(0, 64, 192), model::Rgb(192, 0, 192)},
      {Vision::NoGreen, model::Rgb(0, 192, 128), model::Rgb(255, 0, 128)},
      {Vision::NoBlue, model::Rgb(0, 255, 192), model::Rgb(64, 255, 0)}};
  for (const Pair& pair : pairs) {
    for (const Vision eyes : {Vision::Normal, Vision::NoRed, Vision::NoGreen, Vision::NoBlue}) {
      EXPECT_EQ(Difference(Seen(pair.A, eyes), Seen(pair.B, eyes)) < 12, eyes == pair.Eyes)
          << static_cast<int>(pair.Eyes) << " " << static_cast<int>(eyes);
    }
  }
}

TEST(DefaultColours, AnyTwoPowersDifferForEveryEye) {
  const model::CountryTable countries = model::FixedCountries();
  for (const Vision vision : {Vision::Normal, Vision::NoRed, Vision::NoGreen, Vision::NoBlue}) {
    for (int a = 1; a <= model::CountryCount; ++a) {
      for (int b = a + 1; b <= model::CountryCount; ++b) {
        EXPECT_GE(Difference(Seen(countries[a].Colour, vision), Seen(countries[b].Colour, vision)),
                  17)
            << countries[a].Name << " and " << countries[b].Name << ", "
            << static_cast<int>(vision);
      }
    }
  }
}

/// The legend's column at the right edge, as it is at its widest, before anything is drawn there.
TEST(DefaultColours, CountsCanBeReadOnTheMap) {
  const QImage picture((DataDirectory() / "map.bmp").c_str());
  ASSERT_FALSE(picture.isNull());
  const int width = picture.width();
  const QRect column(width * 96 / 100, width / 200, width * 3 / 100, width / 9);
  const QImage ground = picture.copy(column).scaled(8, 8, Qt::IgnoreAspectRatio);
  for (const model::Country& country : model::FixedCountries()) {
    for (int i = 0; i < 64; ++i) {
      const QRgb pixel = ground.pixel(i % 8, i / 8);
      const model::Colour colour = model::Rgb(pixel >> 16 & 0xFF, pixel >> 8 & 0xFF, pixel & 0xFF);
      EXPECT_GE(Contrast(country.TextColour, colour), 4.5) << country.Name;
    }
  }
}

}  // namespace
}  // namespace orb::tests
