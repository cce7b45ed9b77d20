#include "render/order_routes.h"

#include "history/convoys.h"
#include "model/lookups.h"
#include "model/place.h"
#include "render/drawing.h"
#include "render/labels.h"
#include "render/order_strokes.h"
#include "render/symbols.h"

#include <algorithm>
#include <array>
#include <initializer_list>
#include <numbers>
#include <string_view>
#include <utility>

namespace orb::render {
namespace {

using model::SamePlace;
using orders::OrderKind;
using orders::OrderOutcome;
using orders::Outcome;

/// How far each of two arrows between the same places, one to and one fro, gives way to its right.
constexpr double SideStep = 4.5 * TwipsPerPixel;

constexpr double UnitRadius = 8 * TwipsPerPixel;
constexpr double UnitReach = 11 * TwipsPerPixel;    ///< where lines to a unit end
constexpr double LabelReach = 2.5 * TwipsPerPixel;  ///< how near heads and marks come to labels
constexpr double DotReach = EndDotRadius + TwipsPerPixel;  ///< of a support's dot with its edge
constexpr double LongestBend = 45 * TwipsPerPixel;

/// A way to come at a unit: turned from the straight one, at least this far from labels.
struct Approach {
  int Degrees;
  double Reach;
};

/// Those that are tried, best first: a strong turn is worse than a head that just touches a label.
constexpr std::array<Approach, 14> Approaches = {{{0, LabelReach},
                                                  {-15, LabelReach},
                                                  {15, LabelReach},
                                                  {-30, LabelReach},
                                                  {30, LabelReach},
                                                  {-45, LabelReach},
                                                  {45, LabelReach},
                                                  {0, 0},
                                                  {-15, 0},
                                                  {15, 0},
                                                  {-60, LabelReach},
                                                  {60, LabelReach},
                                                  {-75, LabelReach},
                                                  {75, LabelReach}}};

bool IsMove(const OrderOutcome& order) {
  return order.Kind == OrderKind::Move;
}

bool SupportsMove(const OrderOutcome& order) {
  return order.Kind == OrderKind::Support && !order.Destination.empty();
}

/// Whether the power and all places that the order's kind needs are on the map: void orders may
/// name anything.
bool CanBeDrawn(const model::Map& map, const OrderOutcome& order) {
  const auto known = [&map](const std::string& place) {
    return model::FindProvince(map, place) != 0;
  };
  const auto isOneOf = [&order](std::initializer_list<OrderKind> kinds) {
    return std::ranges::find(kinds, order.Kind) != kinds.end();
  };
  if (model::FindCountry(order.Power) == 0 || !known(order.Location)) return false;
  if (isOneOf({OrderKind::Hold, OrderKind::Disband, OrderKind::Build})) return true;
  if (isOneOf({OrderKind::Move, OrderKind::Retreat})) return known(order.Destination);
  if (order.Kind == OrderKind::Convoy || SupportsMove(order)) {
    return known(order.OtherLocation) && known(order.Destination);
  }
  return order.Kind == OrderKind::Support && known(order.OtherLocation);
}

const std::string& EndOf(const OrderOutcome& order) {
  return order.Kind == OrderKind::Support ? order.OtherLocation : order.Destination;
}

/// Where supports end on a move, as a part of what can be seen of it: near its head, since its
/// supporters stand near its destination.
double SupportedPart(const Way& move) {
  return std::clamp(1 - 34 * TwipsPerPixel / (move.At(1) - move.At(0)), 0.4, 0.6);
}

/// Finds the lines of all routes in two rounds: first those that end at units, then the supports of
/// moves, which end on lines of the first round.
class Router {
 public:
  Router(const Surface& surface, const model::GameState& game, std::span<const OrderOutcome> orders,
         const std::vector<LabelBoxes>& labels, std::vector<OrderRoute>& routes)
      : surface_(surface), map_(*game.Map), orders_(orders), labels_(labels), routes_(routes) {
    for (const ShownUnit& unit : UnitsShown(game))
      units_.push_back(UnitBox(unit.UnitType, OnSurface(surface, unit.At), unit.Scale));
  }

  void FindWays() {
    for (OrderRoute& route : routes_) {
      const OrderOutcome& order = *route.Order;
      const auto at = order.Kind == OrderKind::Retreat ? LabelPoint : UnitPoint;
      route.Unit = OnSurface(surface_, at(model::PlaceOf(map_, order.Location)));
      if (!GoesToUnit(order)) continue;
      const bool hasOpposite = HasOpposite(order);
      const bool supports = order.Kind == OrderKind::Support;
      route.Way = WayThrough(StopsOf(route, hasOpposite), supports ? EndDotRadius : HeadLength,
                             hasOpposite);
      if (supports) KeepEndClear(route.Way.Line);
    }
    for (OrderRoute& route : routes_) {
      if (route.Order->Kind == OrderKind::Convoy) FindConvoy(route);
      if (SupportsMove(*route.Order)) FindSupport(route);
      if (!route.Way.Line.empty()) FindMark(route);
    }
  }

 private:
  Point UnitAt(const std::string& location) const {
    return OnSurface(surface_, UnitPoint(model::PlaceOf(map_, location)));
  }

  /// Whether the order's line ends at a unit. An order that leads from a place to itself has none.
  static bool GoesToUnit(const OrderOutcome& order) {
    return (IsMove(order) || order.Kind == OrderKind::Retreat ||
            order.Kind == OrderKind::Support) &&
           !SupportsMove(order) && EndOf(order) != order.Location;
  }

  /// The points, in order, that the line of an order leads from, through and to. Lines both ways
  /// between two places would fall into one, so each keeps to its right.
  Path StopsOf(const OrderRoute& route, bool hasOpposite) const {
    const OrderOutcome& order = *route.Order;
    Path stops = {route.Unit};
    for (const std::string& fleet : history::FleetsOf(map_, order, orders_))
      stops.push_back(UnitAt(fleet));
    stops.push_back(UnitAt(EndOf(order)));
    const Point right = Right(Towards(stops.front(), stops.back()));
    for (Point& stop : stops)
      stop = Moved(stop, right, hasOpposite ? SideStep : 0);
    return stops;
  }

  /// Whether another order's line runs between the same two places the other way.
  bool HasOpposite(const OrderOutcome& order) const {
    return std::ranges::any_of(routes_, [&order](const OrderRoute& other) {
      return GoesToUnit(*other.Order) && SamePlace(other.Order->Location, EndOf(order)) &&
             SamePlace(EndOf(*other.Order), order.Location);
    });
  }

  /// Straight from stop to stop; the last leg ends at the edge of the last unit.
  Way WayThrough(const Path& stops, double endLength, bool hasOpposite = false) const {
    Way way;
    way.Line.assign(stops.begin(), stops.end() - 1);
    way.Leg = LengthOf(way.Line);
    const Path leg = LegTo(way.Line.back(), stops.back(), endLength, hasOpposite);
    way.Line.insert(way.Line.end(), leg.begin() + 1, leg.end());
    return way;
  }

  /// Straight, unless that would end on a label or on another line's end: then a curve that comes
  /// from the side. Of two opposite ones each bends away from the other.
  Path LegTo(Point from, Point unit, double endLength, bool hasOpposite) const {
    Path crowded;
    for (const auto& [degrees, reach] : Approaches) {
      if (hasOpposite && degrees > 0) continue;
      Path line = CurveTo(from, unit, degrees * std::numbers::pi / 180);
      if (!IsFree(line, endLength, reach)) continue;
      if (!IsTaken(line.back())) return line;
      if (crowded.empty()) crowded = std::move(line);
    }
    return crowded.empty() ? CurveTo(from, unit, 0) : crowded;
  }

  /// Ends at the edge of the unit, at this angle from the straight line.
  static Path CurveTo(Point from, Point unit, double angle) {
    const double distance = Distance(from, unit);
    const double reach = std::min(UnitReach, 0.4 * distance);
    const Point side = Turned(Towards(unit, from), angle);
    const Point end = Moved(unit, side, reach);
    if (angle == 0) return {from, end};
    return CurvePath(from, Moved(end, side, std::min(0.4 * distance, LongestBend)), end);
  }

  /// Draws the end of a line back until no unit hides the dot there, if it is long enough.
  void KeepEndClear(Path& line) const {
    const double length = LengthOf(line);
    for (double end = length; end > 0.5 * length; end -= TwipsPerPixel) {
      if (IsUnderUnit(SpotAt(line, end).At)) continue;
      if (end < length) line = PartOf(line, 0, end);
      return;
    }
  }

  /// Whether the end of a line keeps this far from all labels.
  bool IsFree(const Path& line, double endLength, double reach) const {
    const double length = LengthOf(line);
    return IsFree(PartOf(line, length - endLength, length), reach);
  }

  /// Whether another line ends there already.
  bool IsTaken(Point end) const {
    return std::ranges::any_of(routes_, [end](const OrderRoute& route) {
      return !route.Way.Line.empty() && Distance(route.Way.Line.back(), end) < 2 * HeadHalf;
    });
  }

  bool IsFree(const Path& stroke, double reach) const {
    return std::ranges::none_of(labels_, [&stroke, reach](const LabelBoxes& boxes) {
      return boxes.AreTouched(stroke, reach);
    });
  }

  /// Whether a unit would hide what is drawn there: units are painted over the lines.
  bool IsUnderUnit(Point at) const {
    return std::ranges::any_of(units_, [at](const Rectangle& unit) {
      return Touches({at, at}, unit, DotReach);
    });
  }

  /// This part of a way, or one of those beside it if a dot or mark would lie on a label or under
  /// a unit there. Where all do, any part of the way that no unit hides, the nearest first.
  double FreeAt(const Way& way, double part, std::initializer_list<double> shifts) const {
    const auto at = [&](double shift) { return SpotAt(way.Line, way.At(part + shift)).At; };
    for (const double shift : shifts) {
      if (IsFree({at(shift), at(shift)}, LabelReach) && !IsUnderUnit(at(shift)))
        return way.At(part + shift);
    }
    constexpr double step = 0.05;
    for (double shift = 0; shift < 1; shift += step) {
      for (const double either : {-shift, shift}) {
        const bool onWay = part + either >= 0 && part + either <= 1;
        if (onWay && !IsUnderUnit(at(either))) return way.At(part + either);
      }
    }
    return way.At(part);
  }

  void FindMark(OrderRoute& route) const {
    route.Mark = route.Order->Kind == OrderKind::Support
                     ? FreeAt(route.Way, 0.5, {0, -0.1, 0.1, -0.2, 0.2})
                     : FreeAt(route.Way, SupportedPart(route.Way) + 0.17, {0, 0.08, -0.3, -0.4});
  }

  /// The move that a support or convoy is for; nothing when nobody ordered it.
  const OrderRoute* FindMove(const OrderOutcome& order) const {
    const auto move = std::ranges::find_if(routes_, [&order](const OrderRoute& other) {
      return history::IsForMove(order, *other.Order) && !other.Way.Line.empty();
    });
    return move == routes_.end() ? nullptr : &*move;
  }

  void FindConvoy(OrderRoute& route) const {
    const OrderOutcome& order = *route.Order;
    if (order.Outcome != Outcome::Void && FindMove(order) != nullptr) return;
    route.Unordered = WayThrough(
        {UnitAt(order.OtherLocation), route.Unit, UnitAt(order.Destination)}, HeadLength);
  }

  void FindSupport(OrderRoute& route) const {
    const OrderOutcome& order = *route.Order;
    const OrderRoute* const move = FindMove(order);
    if (move == nullptr) {
      route.Unordered =
          WayThrough({UnitAt(order.OtherLocation), UnitAt(order.Destination)}, HeadLength);
    }
    const Way& supported = move == nullptr ? route.Unordered : move->Way;
    const double end = FreeAt(supported, SupportedPart(supported), {0, -0.1, 0.1, -0.2});
    route.Way.Line = {route.Unit, SpotAt(supported.Line, end).At};
  }

  const Surface& surface_;
  const model::Map& map_;
  std::span<const OrderOutcome> orders_;
  const std::vector<LabelBoxes>& labels_;
  std::vector<OrderRoute>& routes_;
  std::vector<Rectangle> units_;
};

}  // namespace

double Way::At(double part) const {
  const double length = LengthOf(Line) - Leg;
  const double start = std::min(UnitRadius, 0.3 * length);
  return Leg + start + part * (length - start);
}

std::vector<OrderRoute> RoutesOf(const Surface& surface, const model::GameState& game,
                                 std::span<const OrderOutcome> orders,
                                 const std::vector<LabelBoxes>& labels) {
  std::vector<OrderRoute> routes;
  for (const OrderOutcome& order : orders) {
    if (!CanBeDrawn(*game.Map, order)) continue;
    routes.push_back({&order, model::FindCountry(order.Power), {}, {}, {}, 0});
  }
  Router(surface, game, orders, labels, routes).FindWays();
  return routes;
}

}  // namespace orb::render
