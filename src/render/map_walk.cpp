#include "render/map_walk.h"

#include "model/lookups.h"
#include "render/drawing.h"
#include "text/strings.h"

#include <array>
#include <cmath>
#include <cstddef>
#include <limits>
#include <string>

namespace orb::render {
namespace {

using model::UnitType;

/// How much worse a place is for every radian that it lies off the direction, in times its
/// distance.
constexpr double Aside = 1.5;

/// Rightwards and downwards, in the order of the directions.
constexpr std::array Ways{Point{-1, 0}, Point{1, 0}, Point{0, -1}, Point{0, 1}};

/// As large as the angle may be: what lies further aside is another key's.
const double Widest = std::atan(1.4);

/// How badly a place lies in a direction, the less the better: its distance, made longer by the
/// angle between both; infinite where it lies elsewhere.
double Detour(const model::Province& from, const model::Province& to, Direction direction,
              double aspect) {
  const Point start = UnitPoint(from);
  const Point end = UnitPoint(to);
  const double right = (end.X - start.X) * aspect;
  const double down = end.Y - start.Y;
  const Point way = Ways[static_cast<std::size_t>(direction)];
  const double ahead = right * way.X + down * way.Y;
  const double beside = right * way.Y - down * way.X;
  const double angle = std::atan2(std::abs(beside), ahead);
  if (ahead <= 0 || angle > Widest) return std::numeric_limits<double>::infinity();
  return std::hypot(ahead, beside) * (1 + Aside * angle);
}

bool AreNeighbours(const model::Map& map, int from, int to) {
  return model::IsAdjacent(map, UnitType::Army, from, to) ||
         model::IsAdjacent(map, UnitType::Fleet, from, to) || model::IsSamePlace(map, from, to);
}

template <class Fits>
int Best(const model::Map& map, int from, Direction direction, double aspect, Fits fits) {
  int best = 0;
  double least = std::numeric_limits<double>::infinity();
  for (int row = 1; row <= map.Provinces.Count(); ++row) {
    if (row == from || !IsStop(map, row) || !fits(row)) continue;
    const double detour = Detour(map.Provinces[from], map.Provinces[row], direction, aspect);
    if (detour < least) {
      least = detour;
      best = row;
    }
  }
  return best;
}

bool BeginsAWord(std::string_view name, std::string_view beginning) {
  const std::string words = text::LowerCase(name);
  for (std::size_t at = 0; at != std::string::npos && at < words.size();) {
    if (std::string_view(words).substr(at).starts_with(beginning)) return true;
    at = words.find(' ', at);
    if (at != std::string::npos) ++at;
  }
  return false;
}

}  // namespace

bool IsStop(const model::Map& map, int row) {
  return model::CanStandIn(map, UnitType::Army, row) ||
         model::CanStandIn(map, UnitType::Fleet, row);
}

int StopNearest(const model::Map& map, Point point, double aspect) {
  int nearest = 0;
  double least = std::numeric_limits<double>::infinity();
  for (int row = 1; row <= map.Provinces.Count(); ++row) {
    const Point at = UnitPoint(map.Provinces[row]);
    const double distance = std::hypot((at.X - point.X) * aspect, at.Y - point.Y);
    if (!IsStop(map, row) || distance >= least) continue;
    nearest = row;
    least = distance;
  }
  return nearest;
}

int StopTowards(const model::Map& map, int row, Direction direction, double aspect) {
  if (row == 0) return StopNamed(map, "", 0, false);
  const int neighbour =
      Best(map, row, direction, aspect, [&](int to) { return AreNeighbours(map, row, to); });
  if (neighbour != 0) return neighbour;
  const int any = Best(map, row, direction, aspect, [](int) { return true; });
  return any != 0 ? any : row;
}

int StopNamed(const model::Map& map, std::string_view beginning, int row, bool fromHere) {
  const std::string wanted = text::LowerCase(beginning);
  const int count = map.Provinces.Count();
  // Whoever goes on typing until an abbreviation is whole means that place, though another name,
  // at which the first letters have arrived, begins so as well.
  for (int at = 1; fromHere && at <= count; ++at) {
    if (IsStop(map, at) && text::LowerCase(map.Provinces[at].Name) == wanted) return at;
  }
  for (int step = fromHere ? 0 : 1; step <= count; ++step) {
    const int at = (row + step - 1 + count) % count + 1;
    const model::Province& province = map.Provinces[at];
    if (!IsStop(map, at)) continue;
    if (BeginsAWord(province.Name, wanted) || BeginsAWord(province.FullName, wanted)) return at;
  }
  return 0;
}

}  // namespace orb::render
