#include "map_data/hit_picture.h"

#include "model/files.h"
#include "model/lookups.h"

#include <algorithm>
#include <limits>

namespace orb::tests {
namespace {

struct Pixel {
  int X = 0, Y = 0;
};

/// The pixels round a pixel, corners and itself included.
std::vector<Pixel> Round(const HitPicture& picture, Pixel at) {
  std::vector<Pixel> round;
  for (int y = std::max(at.Y - 1, 0); y <= std::min(at.Y + 1, picture.Height - 1); ++y) {
    for (int x = std::max(at.X - 1, 0); x <= std::min(at.X + 1, picture.Width - 1); ++x)
      round.push_back({x, y});
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

/// The row of the province's coast nearest to the piece, or 0 when it has no coasts.
int NearestCoast(const HitPicture& picture, const model::Map& map, int province,
                 const std::vector<Pixel>& piece) {
  int nearest = 0;
  double least = std::numeric_limits<double>::max();
  for (int row = 1; row <= map.Provinces.Count(); ++row) {
    const model::Province& coast = map.Provinces[row];
    if (!coast.Name.starts_with(map.Provinces[province].Name + ".")) continue;
    for (const Pixel p : piece) {
      const double dx = p.X + 0.5 - static_cast<double>(coast.UnitX) * picture.Width;
      const double dy = p.Y + 0.5 - static_cast<double>(coast.UnitY) * picture.Height;
      if (dx * dx + dy * dy >= least) continue;
      least = dx * dx + dy * dy;
      nearest = row;
    }
  }
  return nearest;
}

}  // namespace

bool IsWater(const model::Map& map, int row) {
  return row != 0 && !model::CanStandIn(map, "A", map.Provinces[row].Name.substr(0, 3));
}

HitPicture ReadHitPicture(const std::filesystem::path& path) {
  const std::string bytes = model::ReadFile(path);
  const auto number = [&](std::size_t at) {
    return static_cast<std::uint8_t>(bytes.at(at)) +
           256 * static_cast<std::uint8_t>(bytes.at(at + 1));
  };
  HitPicture picture{number(18), number(22), {}};
  const std::ptrdiff_t stride = (picture.Width + 3) & ~3;
  for (int line = picture.Height; line-- > 0;) {
    const auto start = bytes.begin() + number(10) + line * stride;
    picture.Rows.insert(picture.Rows.end(), start, start + picture.Width);
  }
  return picture;
}

HitPicture SplitCoasts(const HitPicture& picture, const model::Map& map) {
  HitPicture split = picture;
  std::vector<bool> hasCoasts(static_cast<std::size_t>(map.Provinces.Count()) + 1);
  for (int row = 1; row <= map.Provinces.Count(); ++row)
    hasCoasts[static_cast<std::size_t>(row)] = NearestCoast(picture, map, row, {{0, 0}}) != 0;
  std::vector<bool> taken(picture.Rows.size());
  for (int y = 0; y < picture.Height; ++y) {
    for (int x = 0; x < picture.Width; ++x) {
      const int row = picture.At(x, y);
      if (!hasCoasts[static_cast<std::size_t>(row)] || taken[picture.Index(x, y)]) continue;
      if (!IsShore(picture, map, {x, y})) continue;
      const std::vector<Pixel> piece = TakePiece(picture, map, {x, y}, taken);
      const int coast = NearestCoast(picture, map, row, piece);
      for (const Pixel p : piece)
        split.Rows[picture.Index(p.X, p.Y)] = static_cast<std::uint8_t>(coast);
    }
  }
  return split;
}

}  // namespace orb::tests
