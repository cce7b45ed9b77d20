#include "render/tinting.h"

#include "model/counts.h"
#include "model/lookups.h"
#include "model/place.h"
#include "render/hit_map.h"

#include <algorithm>
#include <cmath>
#include <unordered_map>

namespace orb::render {
namespace {

using model::GameState;

constexpr std::size_t MaxRow = 256;
constexpr int Channels = 3;

/// What becomes of each value of the three channels of a colour.
using ChannelTables = std::array<std::array<std::uint8_t, 256>, Channels>;

/// How much ink, 0..255, a pattern has at each pixel of a square that is repeated.
struct Pattern {
  int Side = 1;
  std::vector<std::uint8_t> Ink;
};

std::uint32_t ChannelOf(std::uint32_t colour, int channel) {
  return colour >> (8 * channel) & 0xFF;
}

/// The owner of most centres next to a land; the home power where no other has more, or nobody any.
Tint NeighboursTint(const GameState& game, int row) {
  std::array<int, TintCount> counts{};
  for (const int neighbour : game.Map->ArmyAdjacency.at(static_cast<std::size_t>(row - 1))) {
    if (neighbour == 0) break;
    if (!model::IsCentre(*game.Map, neighbour)) continue;
    ++counts.at(static_cast<std::size_t>(model::FindCountry(game.Provinces[neighbour].Owner)));
  }
  counts[0] = 0;
  const auto most = std::ranges::max_element(counts);
  const int home = model::FindCountry(game.Map->Provinces[row].HomeCountry);
  if (*most == 0) return Paper;
  return static_cast<Tint>(
      counts.at(static_cast<std::size_t>(home)) == *most ? home : most - counts.begin());
}

/// A coast goes with its land.
Tint OwnersTint(const GameState& game, int location) {
  const int row =
      model::FindProvince(*game.Map, model::ProvinceName(game.Map->Provinces[location].Name));
  if (model::IsCentre(*game.Map, row)) {
    return static_cast<Tint>(model::FindCountry(game.Provinces[row].Owner));
  }
  return game.Map->Provinces[row].HomeCountry.empty() ? Paper : NeighboursTint(game, row);
}

/// The pixel of the hit-test picture that lies where a pixel of a picture of another size does.
int Corresponding(int pixel, int size, int hitSize) {
  const std::int64_t middle = 2 * static_cast<std::int64_t>(pixel) + 1;
  return static_cast<int>(middle * hitSize / (2 * static_cast<std::int64_t>(size)));
}

/// Calls with every pixel and the row of the location that it shows.
template <class Visitor>
void ForPixels(const PixelPicture& picture, const HitMap& hitMap, int step, Visitor visit) {
  std::vector<int> columns;
  columns.reserve(static_cast<std::size_t>(picture.Width));
  for (int x = 0; x < picture.Width; ++x)
    columns.push_back(Corresponding(x, picture.Width, hitMap.Width()));
  for (int y = 0; y < picture.Height; y += step) {
    const int hitY = Corresponding(y, picture.Height, hitMap.Height());
    const auto line = picture.Pixels.subspan(
        static_cast<std::size_t>(y) * static_cast<std::size_t>(picture.Width),
        static_cast<std::size_t>(picture.Width));
    for (int x = 0; x < picture.Width; x += step) {
      const int row = hitMap.RowAt(columns[static_cast<std::size_t>(x)], hitY);
      if (row != 0) visit(line[static_cast<std::size_t>(x)], row, x, y);
    }
  }
}

/// Takes one tint to the other. The darker a colour is beside the tint, the less it changes: lines
/// on the land, and their soft edges, stay as they are.
ChannelTables TablesFor(std::uint32_t from, std::uint32_t to) {
  ChannelTables tables{};
  for (int channel = 0; channel < Channels; ++channel) {
    const double old = std::max(1.0, static_cast<double>(ChannelOf(from, channel)));
    const double step = static_cast<double>(ChannelOf(to, channel)) - old;
    for (int value = 0; value < 256; ++value) {
      const double part = std::min(1.0, value / old);
      tables.at(static_cast<std::size_t>(channel)).at(static_cast<std::size_t>(value)) =
          static_cast<std::uint8_t>(std::clamp(std::lround(value + step * part * part), 0L, 255L));
    }
  }
  return tables;
}

std::uint32_t Mapped(const ChannelTables& tables, std::uint32_t colour) {
  return 0xFF000000U | static_cast<std::uint32_t>(tables[2][colour >> 16 & 0xFF]) << 16 |
         static_cast<std::uint32_t>(tables[1][colour >> 8 & 0xFF]) << 8 | tables[0][colour & 0xFF];
}

/// The strokes that stand for a power, or none for paper. On neighbouring lands no two of them look
/// alike from afar: they differ in direction, and dots from lines.
bool HasInk(Tint tint, double x, double y, double side) {
  constexpr double thin = 0.14;  // of the pattern's side
  const auto line = [side](double along) {
    const double part = along / side - std::floor(along / side);
    return std::min(part, 1 - part) < thin / 2;
  };
  const auto dot = [side](double x0, double y0) {
    return std::hypot(x0 - side / 2, y0 - side / 2) < 0.2 * side;
  };
  switch (tint) {
    case 1:
      return line(y);
    case 2:
      return line(x + y);
    case 3:
      return line(x + y) || line(x - y);
    case 4:
      return dot(x, y);
    case 5:
      return line(x);
    case 6:
      return line(x - y);
    case 7:
      return line(x) || line(y);
    default:
      return false;
  }
}

/// The pattern of a tint on a map some pixels wide, smoothed at the edges.
Pattern PatternFor(Tint tint, int width) {
  constexpr double sideOn1000 = 7;
  constexpr int samples = 4;
  constexpr int blackest = 150;  // so that labels and borders stand out
  Pattern pattern;
  pattern.Side = std::max(3, static_cast<int>(std::lround(sideOn1000 * width / 1000)));
  for (int i = 0; i < pattern.Side * pattern.Side; ++i) {
    const int row = i / pattern.Side;
    int hits = 0;
    for (int k = 0; k < samples * samples; ++k) {
      const int sampleRow = k / samples;
      const double x = i % pattern.Side + (k % samples + 0.5) / samples;
      const double y = row + (sampleRow + 0.5) / samples;
      hits += HasInk(tint, x, y, pattern.Side) ? 1 : 0;
    }
    pattern.Ink.push_back(static_cast<std::uint8_t>(hits * blackest / (samples * samples)));
  }
  return pattern;
}

std::uint32_t Inked(std::uint32_t colour, unsigned ink) {
  const unsigned left = 255 - ink;
  const auto channel = [&](int shift) { return (colour >> shift & 0xFF) * left / 255 << shift; };
  return 0xFF000000U | channel(16) | channel(8) | channel(0);
}

void ApplyPatterns(const PixelPicture& picture, const HitMap& hitMap, const Tinting& tinting) {
  std::vector<Pattern> patterns;
  patterns.reserve(TintCount);
  for (std::size_t tint = 0; tint < TintCount; ++tint)
    patterns.push_back(PatternFor(static_cast<Tint>(tint), picture.Width));
  // All patterns repeat alike; a division for each pixel would take longer than all the rest.
  const int side = patterns.front().Side;
  std::vector<int> columns;
  columns.reserve(static_cast<std::size_t>(picture.Width));
  for (int x = 0; x < picture.Width; ++x)
    columns.push_back(x % side);
  std::array<const std::uint8_t*, MaxRow> inkOf{};
  for (std::size_t i = 0; i < tinting.Shown.size(); ++i) {
    const Tint tint = tinting.Shown[i];
    if (tint > Paper) inkOf.at(i + 1) = patterns[static_cast<std::size_t>(tint)].Ink.data();
  }
  ForPixels(picture, hitMap, 1, [&](std::uint32_t& colour, int row, int x, int y) {
    const std::uint8_t* const ink = inkOf[static_cast<std::size_t>(row)];
    if (ink == nullptr) return;
    const std::uint8_t here = ink[y % side * side + columns[static_cast<std::size_t>(x)]];
    if (here != 0) colour = Inked(colour, here);
  });
}

}  // namespace

Tinting TintByOwner(const GameState& game, const std::filesystem::path& dataDirectory,
                    settings::MapMode mode) {
  Tinting tinting{dataDirectory / "maphit.bmp", {}, {}, mode == settings::MapMode::BlackWhite};
  for (int row = 1; row <= game.Map->Provinces.Count(); ++row) {
    const model::Province& place = game.Map->Provinces[row];
    const bool isLand = model::CanStandIn(*game.Map, "A", model::ProvinceName(place.Name));
    tinting.Printed.push_back(isLand ? static_cast<Tint>(model::FindCountry(place.HomeCountry))
                                     : NoTint);
    tinting.Shown.push_back(isLand ? OwnersTint(game, row) : NoTint);
  }
  return tinting;
}

TintColourTable TintColours(const PixelPicture& background, const HitMap& hitMap,
                            const Tinting& tinting) {
  // Some of the pixels tell as well as all of them.
  constexpr int step = 3;
  std::array<std::unordered_map<std::uint32_t, int>, TintCount> counts;
  ForPixels(background, hitMap, step, [&](std::uint32_t colour, int row, int, int) {
    const Tint tint = tinting.Printed[static_cast<std::size_t>(row - 1)];
    if (tint != NoTint) ++counts.at(static_cast<std::size_t>(tint))[colour];
  });
  TintColourTable colours{};
  for (std::size_t tint = 0; tint < TintCount; ++tint) {
    int most = 0;
    colours.at(tint) = 0xFFFFFFFFU;
    for (const auto& [colour, count] : counts.at(tint)) {
      // Of two that cover as much the lighter one: the same picture must give the same tints.
      if (count < most || (count == most && colour < colours.at(tint))) continue;
      most = count;
      colours.at(tint) = colour;
    }
  }
  return colours;
}

void ApplyTints(const PixelPicture& picture, const HitMap& hitMap, const Tinting& tinting,
                const TintColourTable& colours) {
  if (hitMap.Width() == 0) return;
  if (tinting.AsPatterns) return ApplyPatterns(picture, hitMap, tinting);
  std::vector<ChannelTables> tables;
  std::array<int, MaxRow> tableOf{};
  tableOf.fill(-1);
  std::array<std::array<int, TintCount>, TintCount> known{};
  for (std::size_t i = 0; i < tinting.Shown.size(); ++i) {
    const Tint from = tinting.Printed[i];
    const Tint to = tinting.Shown[i];
    if (from == to || from == NoTint || to == NoTint) continue;
    int& table = known.at(static_cast<std::size_t>(from)).at(static_cast<std::size_t>(to));
    if (table == 0) {
      tables.push_back(TablesFor(colours.at(static_cast<std::size_t>(from)),
                                 colours.at(static_cast<std::size_t>(to))));
      table = static_cast<int>(tables.size());
    }
    tableOf.at(i + 1) = table - 1;
  }
  ForPixels(picture, hitMap, 1, [&](std::uint32_t& colour, int row, int, int) {
    const int table = tableOf[static_cast<std::size_t>(row)];
    if (table >= 0) colour = Mapped(tables[static_cast<std::size_t>(table)], colour);
  });
}

}  // namespace orb::render
