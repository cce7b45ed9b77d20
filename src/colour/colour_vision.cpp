#include "colour/colour_vision.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <numbers>
#include <utility>

namespace orb::colour {
namespace {

using Vector = std::array<double, 3>;
using Matrix = std::array<Vector, 3>;

constexpr std::array<Vision, 4> Visions = {Vision::Normal, Vision::NoRed, Vision::NoGreen,
                                           Vision::NoBlue};

/// Two small symbols far apart on the map are compared from memory, not side by side.
constexpr double LeastDifference = 12;

// These act on linear red, green and blue. Each row adds up to 1, so that grey stays grey.
constexpr Matrix NoRedMatrix = {{{0.152286, 1.052583, -0.204868},
                                 {0.114503, 0.786281, 0.099216},
                                 {-0.003882, -0.048116, 1.051998}}};
constexpr Matrix NoGreenMatrix = {{{0.367322, 0.860646, -0.227968},
                                   {0.280085, 0.672501, 0.047413},
                                   {-0.011820, 0.042940, 0.968881}}};
constexpr Matrix NoBlueMatrix = {{{1.255528, -0.076749, -0.178779},
                                  {-0.078411, 0.930809, 0.147602},
                                  {0.004733, 0.691367, 0.303900}}};
/// From linear sRGB to CIE XYZ, white point D65.
constexpr Matrix RgbToXyz = {{{0.4124564, 0.3575761, 0.1804375},
                              {0.2126729, 0.7151522, 0.0721750},
                              {0.0193339, 0.1191920, 0.9503041}}};

Vector Product(const Matrix& matrix, const Vector& v) {
  Vector result{};
  for (std::size_t row = 0; row < 3; ++row) {
    for (std::size_t column = 0; column < 3; ++column) {
      result[row] += matrix[row][column] * v[column];
    }
  }
  return result;
}

/// The three parts of a colour, 0..1, without the gamma curve of sRGB (IEC 61966-2-1).
Vector Linear(model::Colour colour) {
  Vector rgb{};
  for (std::size_t i = 0; i < 3; ++i) {
    const double part = (colour >> (8 * i) & 0xFF) / 255.0;
    rgb[i] = part <= 0.04045 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4);
  }
  return rgb;
}

/// The cube root of CIE Lab, continued by a straight line near black.
double Cube(double t) {
  return t > 216.0 / 24389 ? std::cbrt(t) : (24389.0 / 27 * t + 16) / 116;
}

double Degrees(double radians) {
  return radians * 180 / std::numbers::pi;
}
double Radians(double degrees) {
  return degrees * std::numbers::pi / 180;
}

/// An angle of 0..360 degrees; grey has no hue, for which 0 stands.
double Hue(double a, double b) {
  if (a == 0 && b == 0) return 0;
  const double hue = Degrees(std::atan2(b, a));
  return hue < 0 ? hue + 360 : hue;
}

/// The mean of two hues on the shorter way round the circle. Where one colour is grey, the other
/// one's hue counts alone.
double MeanHue(double h1, double h2, bool grey) {
  if (grey || std::abs(h1 - h2) <= 180) return grey ? h1 + h2 : (h1 + h2) / 2;
  return h1 + h2 < 360 ? (h1 + h2 + 360) / 2 : (h1 + h2 - 360) / 2;
}

/// The way from one hue to the other, -180..180 degrees.
double HueStep(double h1, double h2, bool grey) {
  if (grey) return 0;
  const double step = h2 - h1;
  if (std::abs(step) <= 180) return step;
  return step > 180 ? step - 360 : step + 360;
}

/// 0 for greys, nearing 1 for vivid colours: the term that CIEDE2000 uses twice.
double ChromaWeight(double chroma) {
  const double power = std::pow(chroma, 7);
  return std::sqrt(power / (power + std::pow(25.0, 7)));
}

}  // namespace

Lab Seen(model::Colour colour, Vision vision) {
  Vector rgb = Linear(colour);
  if (vision == Vision::NoRed) rgb = Product(NoRedMatrix, rgb);
  if (vision == Vision::NoGreen) rgb = Product(NoGreenMatrix, rgb);
  if (vision == Vision::NoBlue) rgb = Product(NoBlueMatrix, rgb);
  // A simulated colour may lie outside what a screen can show.
  for (double& part : rgb)
    part = std::clamp(part, 0.0, 1.0);
  const Vector xyz = Product(RgbToXyz, rgb);
  const double x = Cube(xyz[0] / 0.95047);
  const double y = Cube(xyz[1]);
  const double z = Cube(xyz[2] / 1.08883);
  return {116 * y - 16, 500 * (x - y), 200 * (y - z)};
}

// The steps of the formula as published by Sharma, Wu and Dalal (2005), its weights kL, kC and kH
// being 1.
double Difference(const Lab& a, const Lab& b) {
  const double meanC = (std::hypot(a.A, a.B) + std::hypot(b.A, b.B)) / 2;
  const double stretch = 1 + 0.5 * (1 - ChromaWeight(meanC));
  const double c1 = std::hypot(stretch * a.A, a.B);
  const double c2 = std::hypot(stretch * b.A, b.B);
  const double h1 = Hue(stretch * a.A, a.B);
  const double h2 = Hue(stretch * b.A, b.B);
  const bool grey = c1 * c2 == 0;
  const double stepL = b.L - a.L;
  const double stepC = c2 - c1;
  const double stepH = 2 * std::sqrt(c1 * c2) * std::sin(Radians(HueStep(h1, h2, grey)) / 2);
  const double l = (a.L + b.L) / 2;
  const double c = (c1 + c2) / 2;
  const double h = MeanHue(h1, h2, grey);
  const double t = 1 - 0.17 * std::cos(Radians(h - 30)) + 0.24 * std::cos(Radians(2 * h)) +
                   0.32 * std::cos(Radians(3 * h + 6)) - 0.20 * std::cos(Radians(4 * h - 63));
  const double turn = 30 * std::exp(-std::pow((h - 275) / 25, 2));
  const double square = (l - 50) * (l - 50);
  const double sl = stepL / (1 + 0.015 * square / std::sqrt(20 + square));
  const double sc = stepC / (1 + 0.045 * c);
  const double sh = stepH / (1 + 0.015 * c * t);
  const double rotation = -2 * ChromaWeight(c) * std::sin(Radians(2 * turn));
  return std::sqrt(sl * sl + sc * sc + sh * sh + rotation * sc * sh);
}

std::vector<AlikePowers> PowersAlike(const model::CountryTable& countries) {
  std::vector<AlikePowers> pairs;
  for (int first = 1; first <= model::CountryCount; ++first) {
    for (int second = first + 1; second <= model::CountryCount; ++second) {
      AlikePowers pair{first, second, {}};
      for (const Vision eyes : Visions) {
        const Lab one = Seen(countries[first].Colour, eyes);
        if (Difference(one, Seen(countries[second].Colour, eyes)) < LeastDifference)
          pair.Eyes.push_back(eyes);
      }
      if (!pair.Eyes.empty()) pairs.push_back(std::move(pair));
    }
  }
  return pairs;
}

}  // namespace orb::colour
