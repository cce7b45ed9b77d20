#include "map_data/hit_picture.h"

#include "model/errors.h"
#include "model/files.h"
#include "orders/lookups.h"

#include <algorithm>
#include <cstdlib>
#include <limits>
#include <string>

namespace orb::tests {
namespace {

struct Pixel {
  int X = 0;
  int Y = 0;
};

int LittleEndian(const std::string& bytes, std::size_t at) {
  std::uint32_t value = 0;
  for (std::size_t i = 4; i-- > 0;)
    value = value << 8U | static_cast<std::uint8_t>(bytes.at(at + i));
  return static_cast<int>(value);
}

/// The pixels round a pixel, corners included.
std::vector<Pixel> Round(const HitPicture& picture, Pixel at) {
  std::vector<Pixel> round;
  for (int y = std::max(at.Y - 1, 0); y <= std::min(at.Y + 1, picture.Height - 1); ++y) {
    for (int x = std::max(at.X - 1, 0); x <= std::min(at.X + 1, picture.Width - 1); ++x) {
      if (x != at.X || y != at.Y) round.push_back({x, y});
    }
  }
  return round;
}

bool IsShore(const HitPicture& picture, const model::Map& map, Pixel at) {
  const std::vector<Pixel> round = Round(picture, at);
  return std::any_of(round.begin(), round.end(),
                     [&](Pixel p) { return IsWater(map, picture.At(p.X, p.Y)); });
}

/// The shore of one province that hangs together with the start; marks it as taken.
std::vector<Pixel> TakePiece(const HitPicture& picture, const model::Map& map, Pixel start,
                             std::vector<bool>& taken) {
  std::vector<Pixel> piece{start};
  taken[picture.Index(start.X, start.Y)] = true;
  for (std::size_t next = 0; next < piece.size(); ++next) {
    for (const Pixel p : Round(picture, piece[next])) {
      const std::size_t index = picture.Index(p.X, p.Y);
      if (taken[index] || picture.Rows[index] != picture.At(start.X, start.Y)) continue;
      if (!IsShore(picture, map, p)) continue;
      taken[index] = true;
      piece.push_back(p);
    }
  }
  return piece;
}

double Distance(const HitPicture& picture, const std::vector<Pixel>& piece,
                const model::Province& coast) {
  double nearest = std::numeric_limits<double>::max();
  for (const Pixel p : piece) {
    const double dx = p.X + 0.5 - static_cast<double>(coast.UnitX) * picture.Width;
    const double dy = p.Y + 0.5 - static_cast<double>(coast.UnitY) * picture.Height;
    nearest = std::min(nearest, dx * dx + dy * dy);
  }
  return nearest;
}

std::vector<int> CoastsOf(const model::Map& map, int province) {
  std::vector<int> coasts;
  for (int row = 1; row <= map.Provinces.Count(); ++row) {
    if (map.Provinces[row].Name.starts_with(map.Provinces[province].Name + ".")) {
      coasts.push_back(row);
    }
  }
  return coasts;
}

}  // namespace

bool IsWater(const model::Map& map, int row) {
  return row != 0 && !orders::CanStandIn(map, "A", map.Provinces[row].Name.substr(0, 3));
}

HitPicture ReadHitPicture(const std::filesystem::path& path) {
  const std::string bytes = model::ReadFile(path);
  HitPicture picture{LittleEndian(bytes, 18), LittleEndian(bytes, 22), {}};
  const auto width = static_cast<std::size_t>(picture.Width);
  const auto lines = static_cast<std::size_t>(picture.Height);
  const std::size_t stride = (width + 3) / 4 * 4;
  const auto start = static_cast<std::size_t>(LittleEndian(bytes, 10));
  if (bytes.size() < start + stride * lines) throw model::FileError(path.string() + " is cut off");
  for (std::size_t line = lines; line-- > 0;) {
    const std::string pixels = bytes.substr(start + line * stride, width);
    picture.Rows.insert(picture.Rows.end(), pixels.begin(), pixels.end());
  }
  return picture;
}

HitPicture SplitCoasts(const HitPicture& picture, const model::Map& map) {
  HitPicture split = picture;
  std::vector<std::vector<int>> coastsOf{{}};
  for (int row = 1; row <= map.Provinces.Count(); ++row)
    coastsOf.push_back(CoastsOf(map, row));
  std::vector<bool> taken(picture.Rows.size());
  for (int y = 0; y < picture.Height; ++y) {
    for (int x = 0; x < picture.Width; ++x) {
      const std::vector<int>& coasts = coastsOf.at(static_cast<std::size_t>(picture.At(x, y)));
      if (coasts.empty() || taken[picture.Index(x, y)] || !IsShore(picture, map, {x, y})) continue;
      const std::vector<Pixel> piece = TakePiece(picture, map, {x, y}, taken);
      const auto distance = [&](int coast) {
        return Distance(picture, piece, map.Provinces[coast]);
      };
      const int nearest = *std::min_element(
          coasts.begin(), coasts.end(), [&](int a, int b) { return distance(a) < distance(b); });
      for (const Pixel p : piece) {
        split.Rows[picture.Index(p.X, p.Y)] = static_cast<std::uint8_t>(nearest);
      }
    }
  }
  return split;
}

}  // namespace orb::tests
