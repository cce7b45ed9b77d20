#include "palette.h"

#include <algorithm>
#include <array>
#include <limits>
#include <unordered_map>
#include <vector>

namespace mapmaker {
namespace {

constexpr std::size_t PaletteSize = 256;
/// The colours that fill areas are kept exactly; the rest are mixtures along the edges.
constexpr std::size_t ExactColours = 64;
constexpr int Rounds = 8;

struct Colour {
  std::array<double, 3> Channels{};
  double Count = 0;
};

Colour ToColour(QRgb rgb, double count) {
  return {{static_cast<double>(qRed(rgb)), static_cast<double>(qGreen(rgb)),
           static_cast<double>(qBlue(rgb))},
          count};
}

QRgb ToRgb(const Colour& colour) {
  const auto channel = [&](std::size_t i) { return static_cast<int>(colour.Channels[i] + 0.5); };
  return qRgb(channel(0), channel(1), channel(2));
}

double Distance(const Colour& a, const Colour& b) {
  double sum = 0;
  for (std::size_t i = 0; i < 3; ++i)
    sum += (a.Channels[i] - b.Channels[i]) * (a.Channels[i] - b.Channels[i]);
  return sum;
}

std::size_t Nearest(const std::vector<Colour>& palette, const Colour& colour) {
  std::size_t best = 0;
  double least = std::numeric_limits<double>::max();
  for (std::size_t i = 0; i < palette.size(); ++i) {
    const double distance = Distance(palette[i], colour);
    if (distance < least) {
      least = distance;
      best = i;
    }
  }
  return best;
}

/// All colours of the picture, the most frequent first.
std::vector<Colour> ColoursOf(const QImage& picture) {
  std::unordered_map<QRgb, int> counts;
  for (int y = 0; y < picture.height(); ++y) {
    const auto* row = reinterpret_cast<const QRgb*>(picture.constScanLine(y));
    for (int x = 0; x < picture.width(); ++x)
      ++counts[row[x]];
  }
  std::vector<Colour> colours;
  for (const auto& [rgb, count] : counts)
    colours.push_back(ToColour(rgb, count));
  std::sort(colours.begin(), colours.end(), [](const Colour& a, const Colour& b) {
    return a.Count != b.Count ? a.Count > b.Count : a.Channels < b.Channels;
  });
  return colours;
}

/// Adds to the palette, until it is full, the colour that is worst served by it.
void AddSpreadColours(std::vector<Colour>& palette, const std::vector<Colour>& colours) {
  std::vector<double> distances;
  for (const Colour& colour : colours)
    distances.push_back(Distance(palette[Nearest(palette, colour)], colour));
  while (palette.size() < std::min(PaletteSize, colours.size())) {
    std::size_t worst = 0;
    for (std::size_t i = 1; i < colours.size(); ++i) {
      if (distances[i] * colours[i].Count > distances[worst] * colours[worst].Count) worst = i;
    }
    palette.push_back(colours[worst]);
    for (std::size_t i = 0; i < colours.size(); ++i)
      distances[i] = std::min(distances[i], Distance(palette.back(), colours[i]));
  }
}

/// Moves each inexact palette colour to the middle of the colours it stands for.
void Refine(std::vector<Colour>& palette, const std::vector<Colour>& colours) {
  std::vector<Colour> sums(palette.size());
  for (const Colour& colour : colours) {
    Colour& sum = sums[Nearest(palette, colour)];
    for (std::size_t i = 0; i < 3; ++i)
      sum.Channels[i] += colour.Channels[i] * colour.Count;
    sum.Count += colour.Count;
  }
  for (std::size_t p = std::min(ExactColours, palette.size()); p < palette.size(); ++p) {
    if (sums[p].Count <= 0) continue;
    for (std::size_t i = 0; i < 3; ++i)
      palette[p].Channels[i] = sums[p].Channels[i] / sums[p].Count;
  }
}

}  // namespace

QImage WithPalette(const QImage& picture) {
  const std::vector<Colour> colours = ColoursOf(picture);
  std::vector<Colour> palette(
      colours.begin(),
      colours.begin() + static_cast<std::ptrdiff_t>(std::min(ExactColours, colours.size())));
  AddSpreadColours(palette, colours);
  for (int i = 0; i < Rounds; ++i)
    Refine(palette, colours);
  QImage indexed(picture.size(), QImage::Format_Indexed8);
  for (std::size_t i = 0; i < palette.size(); ++i)
    indexed.setColor(static_cast<int>(i), ToRgb(palette[i]));
  std::unordered_map<QRgb, uchar> known;
  for (const Colour& colour : colours)
    known[ToRgb(colour)] = static_cast<uchar>(Nearest(palette, colour));
  for (int y = 0; y < picture.height(); ++y) {
    const auto* row = reinterpret_cast<const QRgb*>(picture.constScanLine(y));
    for (int x = 0; x < picture.width(); ++x)
      indexed.scanLine(y)[x] = known.at(row[x] | 0xff000000);
  }
  return indexed;
}

}  // namespace mapmaker
