#include "render/qt/palette.h"

#include <algorithm>
#include <array>
#include <iterator>

namespace orb::render {
namespace {

/// A colour and how many pixels have it.
struct Shade {
  std::array<int, 3> Parts;  ///< red, green, blue
  double Weight = 0;
};

using Shades = std::vector<Shade>;

std::array<int, 3> PartsOf(QRgb colour) {
  return {qRed(colour), qGreen(colour), qBlue(colour)};
}

/// How many pixels have which colour, over all pictures, in a fixed order.
Shades CountShades(const std::vector<QImage>& pictures) {
  std::unordered_map<QRgb, double> counts;
  for (const QImage& picture : pictures) {
    for (int y = 0; y < picture.height(); ++y) {
      const auto* row = reinterpret_cast<const QRgb*>(picture.constScanLine(y));
      for (int x = 0; x < picture.width(); ++x)
        ++counts[row[x] | 0xFF000000U];
    }
  }
  Shades shades;
  shades.reserve(counts.size());
  for (const auto& [colour, count] : counts)
    shades.push_back({PartsOf(colour), count});
  // The order in a hash table differs between libraries; the same map must give the same file.
  std::sort(shades.begin(), shades.end(),
            [](const Shade& a, const Shade& b) { return a.Parts < b.Parts; });
  return shades;
}

/// Neighbouring shades that one colour is to stand for.
struct Box {
  Shades::iterator Begin, End;
  std::array<double, 3> Mean{};
  std::size_t Axis = 0;  ///< the part of the colours that differs most
  double Spread = 0;     ///< how much: the sum of the squared distances from the mean
};

Box BoxOf(Shades::iterator begin, Shades::iterator end) {
  Box box{begin, end};
  for (std::size_t axis = 0; axis < 3; ++axis) {
    double weight = 0;
    double sum = 0;
    double squares = 0;
    for (auto shade = begin; shade != end; ++shade) {
      const double part = shade->Parts[axis];
      weight += shade->Weight;
      sum += shade->Weight * part;
      squares += shade->Weight * part * part;
    }
    box.Mean[axis] = sum / weight;
    const double spread = squares - sum * box.Mean[axis];
    if (spread > box.Spread) {
      box.Spread = spread;
      box.Axis = axis;
    }
  }
  return box;
}

/// Where the box falls into two at its mean. Both halves hold something, whatever rounding does to
/// a mean of almost equal parts.
Shades::iterator Split(const Box& box) {
  const double mean = box.Mean[box.Axis];
  const auto middle = std::partition(
      box.Begin, box.End, [&](const Shade& shade) { return shade.Parts[box.Axis] < mean; });
  return middle == box.Begin || middle == box.End ? std::next(box.Begin) : middle;
}

/// The shade that most of the box has, or else the mean.
QRgb ColourOf(const Box& box) {
  double weight = 0;
  auto first = box.Begin;
  for (auto shade = box.Begin; shade != box.End; ++shade) {
    weight += shade->Weight;
    if (shade->Weight > first->Weight) first = shade;
  }
  if (first->Weight * 2 > weight) return qRgb(first->Parts[0], first->Parts[1], first->Parts[2]);
  return qRgb(qRound(box.Mean[0]), qRound(box.Mean[1]), qRound(box.Mean[2]));
}

int Distance(QRgb a, QRgb b) {
  const int red = qRed(a) - qRed(b);
  const int green = qGreen(a) - qGreen(b);
  const int blue = qBlue(a) - qBlue(b);
  return red * red + green * green + blue * blue;
}

}  // namespace

std::vector<QRgb> ChooseColours(const std::vector<QImage>& pictures, std::size_t count) {
  // A median cut by variance: of all boxes, the one whose pixels differ most from their mean colour
  // falls into two at that mean.
  Shades shades = CountShades(pictures);
  std::vector<Box> boxes;
  if (!shades.empty()) boxes.push_back(BoxOf(shades.begin(), shades.end()));
  while (!boxes.empty() && boxes.size() < count) {
    const auto widest = std::max_element(
        boxes.begin(), boxes.end(), [](const Box& a, const Box& b) { return a.Spread < b.Spread; });
    // Every box holds a single shade: there are fewer colours than allowed.
    if (std::next(widest->Begin) == widest->End) break;
    const auto middle = Split(*widest);
    const Box upper = BoxOf(middle, widest->End);
    *widest = BoxOf(widest->Begin, middle);
    boxes.push_back(upper);
  }
  std::vector<QRgb> colours;
  std::transform(boxes.begin(), boxes.end(), std::back_inserter(colours), ColourOf);
  return colours;
}

std::uint8_t Palette::IndexOf(QRgb colour) {
  const auto [found, isNew] = known_.try_emplace(colour);
  if (isNew) {
    const auto nearest = std::min_element(colours_.begin(), colours_.end(), [&](QRgb a, QRgb b) {
      return Distance(a, colour) < Distance(b, colour);
    });
    found->second = static_cast<std::uint8_t>(nearest - colours_.begin());
  }
  return found->second;
}

}  // namespace orb::render
