#include "palette.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <limits>
#include <unordered_map>
#include <vector>

namespace mapmaker {
namespace {

/// The most frequent colours fill areas; this part of the palette keeps them exactly. The rest is
/// for the mixtures along the edges.
constexpr std::size_t ExactShare = 4;
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
  const auto channel = [&](std::size_t i) {
    return static_cast<int>(std::lround(colour.Channels[i]));
  };
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
  colours.reserve(counts.size());
  for (const auto& [rgb, count] : counts)
    colours.push_back(ToColour(rgb, count));
  std::sort(colours.begin(), colours.end(), [](const Colour& a, const Colour& b) {
    return a.Count != b.Count ? a.Count > b.Count : a.Channels < b.Channels;
  });
  return colours;
}

/// Adds to the palette, until it is full, the colour that is worst served by it.
void AddSpreadColours(std::vector<Colour>& palette, const std::vector<Colour>& colours,
                      std::size_t size) {
  std::vector<double> distances;
  distances.reserve(colours.size());
  for (const Colour& colour : colours)
    distances.push_back(Distance(palette[Nearest(palette, colour)], colour));
  while (palette.size() < std::min(size, colours.size())) {
    std::size_t worst = 0;
    for (std::size_t i = 1; i < colours.size(); ++i) {
      if (distances[i] * colours[i].Count > distances[worst] * colours[worst].Count) worst = i;
    }
    palette.push_back(colours[worst]);
    for (std::size_t i = 0; i < colours.size(); ++i)
      distances[i] = std::min(distances[i], Distance(palette.back(), colours[i]));
  }
}

/// Moves each palette colour but the first `exact` ones to the middle of the colours it stands for.
void Refine(std::vector<Colour>& palette, const std::vector<Colour>& colours, std::size_t exact) {
  std::vector<Colour> sums(palette.size());
  for (const Colour& colour : colours) {
    Colour& sum = sums[Nearest(palette, colour)];
    for (std::size_t i = 0; i < 3; ++i)
      sum.Channels[i] += colour.Channels[i] * colour.Count;
    sum.Count += colour.Count;
  }
  for (std::size_t p = exact; p < palette.size(); ++p) {
    if (sums[p].Count <= 0) continue;
    for (std::size_t i = 0; i < 3; ++i)
      palette[p].Channels[i] = sums[p].Channels[i] / sums[p].Count;
  }
}

}  // namespace

QImage WithPalette(const QImage& picture, std::size_t size) {
  const std::vector<Colour> colours = ColoursOf(picture);
  const std::size_t exact = std::min(size / ExactShare, colours.size());
  std::vector<Colour> palette(colours.begin(),
                              colours.begin() + static_cast<std::ptrdiff_t>(exact));
  AddSpreadColours(palette, colours, size);
  for (int i = 0; i < Rounds; ++i)
    Refine(palette, colours, exact);
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
