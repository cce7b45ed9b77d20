#include "render/order_drawing.h"

#include "model/lookups.h"
#include "model/place.h"
#include "render/drawing.h"
#include "render/order_strokes.h"
#include "render/parts.h"
#include "render/symbols.h"
#include "settings/map_options.h"

#include <algorithm>

namespace orb::render {
namespace {

using orders::OrderOutcome;
using orders::Outcome;

constexpr double MoveWidth = 2.2;
constexpr double OtherWidth = 1.5;
constexpr double EdgeWidth = 0.8;
constexpr double EdgeWidthWithoutColour = 1.3;  ///< the map's borders are black there as well
constexpr double RingRadius = 12 * TwipsPerPixel;
constexpr double MarkReach = 3.6 * TwipsPerPixel;
constexpr double DisbandReach = 9 * TwipsPerPixel;
constexpr double WaveDepth = 10 * TwipsPerPixel;  ///< of the waves below a fleet's middle
constexpr double LineReach = 2 * TwipsPerPixel;   ///< to either side of a line's middle

/// Dark colours have a light edge, light ones a dark one.
OrderPen PenOf(const model::Country& country, settings::MapMode mode, double width) {
  if (!settings::InColour(mode)) return {Black, White, width, EdgeWidthWithoutColour};
  if (IsDark(country.Colour)) return {country.Colour, White, width, EdgeWidth};
  const model::Colour edge = IsDark(country.TextColour) ? country.TextColour : Black;
  return {country.Colour, edge, width, EdgeWidth};
}

/// The form of an order's line: the usual one, but dots for what is void.
LineForm FormFor(Outcome outcome, LineForm usual) {
  return outcome == Outcome::Void ? LineForm::Dots : usual;
}

bool GoesThrough(Outcome outcome) {
  return outcome == Outcome::Entered || outcome == Outcome::Succeeded;
}

/// Draws the orders one by one: lines and rings lie below the units, crosses and pluses on them.
class Artist {
 public:
  Artist(Surface& surface, const model::GameState& game, const settings::MapOptions& options)
      : surface_(surface), game_(game), options_(options) {}

  /// Draws one of the following for an order, as a part of the picture.
  void Draw(void (Artist::*what)(const OrderRoute&) const, const OrderRoute& route) const {
    const DrawnPart part(surface_, *route.Order);
    (this->*what)(route);
  }

  /// A move or a retreat. A failed one runs on beyond its bar in dashes, to show where it headed.
  void DrawArrow(const OrderRoute& route) const {
    const Outcome outcome = route.Order->Outcome;
    const OrderPen pen = Pen(route, outcome == Outcome::Void ? OtherWidth : MoveWidth);
    const Path& line = route.Way.Line;
    const double end = LengthOf(line);
    const bool retreats = route.Order->Kind == orders::OrderKind::Retreat;
    const LineForm form = FormFor(outcome, retreats ? LineForm::LongDashes : LineForm::Solid);
    // The blunt end of the line stays below the head's triangle.
    const double neck = GoesThrough(outcome) ? end - 0.7 * HeadLength : end;
    const double stop = outcome == Outcome::Failed ? route.Mark : neck;
    DrawPath(surface_, pen, PartOf(line, stop, neck), LineForm::Dashes);
    DrawPath(surface_, pen, PartOf(line, 0, stop), form);
    DrawMark(pen, outcome, SpotAt(line, route.Mark));
    DrawHead(surface_, pen, HeadSpot(line), GoesThrough(outcome));
  }

  void DrawSupport(const OrderRoute& route) const {
    const Outcome outcome = route.Order->Outcome;
    const OrderPen pen = Pen(route, OtherWidth);
    const Path& line = route.Way.Line;
    const LineForm form = FormFor(outcome, LineForm::Dashes);
    DrawUnordered(route);
    if (outcome == Outcome::Cut) {
      DrawPath(surface_, pen, PartOf(line, 0, route.Mark - CutGap / 2), form);
      DrawPath(surface_, pen, PartOf(line, route.Mark + CutGap / 2, LengthOf(line)), form);
    } else {
      DrawPath(surface_, pen, line, form);
    }
    DrawMark(pen, outcome, SpotAt(line, route.Mark));
  }

  /// The dot lies on the move that is supported.
  void DrawSupportEnd(const OrderRoute& route) const {
    DrawEndDot(surface_, Pen(route, OtherWidth), route.Way.Line.back(),
               GoesThrough(route.Order->Outcome));
  }

  void DrawRing(const OrderRoute& route) const {
    const Outcome outcome = route.Order->Outcome;
    const OrderPen pen = Pen(route, OtherWidth);
    const Path ring = RingPath(route.Unit, RingRadius);
    DrawPath(surface_, pen, ring,
             FormFor(outcome, GoesThrough(outcome) ? LineForm::Solid : LineForm::Dashes));
    DrawMark(pen, outcome, MarkOnRing(ring));
  }

  void DrawConvoy(const OrderRoute& route) const {
    const Outcome outcome = route.Order->Outcome;
    const OrderPen pen = Pen(route, OtherWidth);
    const Path waves = WavePath({route.Unit.X, route.Unit.Y + WaveDepth});
    DrawUnordered(route);
    DrawPath(surface_, pen, waves, FormFor(outcome, LineForm::Solid));
    DrawMark(pen, outcome, {waves.back(), {1, 0}});
  }

  void DrawDisband(const OrderRoute& route) const {
    if (!GoesThrough(route.Order->Outcome)) return DrawRing(route);
    const model::Province& place = model::PlaceOf(*game_.Map, route.Order->Location);
    const auto point = HasAttacker(*route.Order) ? LabelPoint : UnitPoint;
    DrawCross(surface_, {Black, White, MoveWidth, EdgeWidth}, OnSurface(surface_, point(place)),
              DisbandReach);
  }

  void DrawBuild(const OrderRoute& route) const {
    const OrderOutcome& order = *route.Order;
    DrawRing(route);
    if (GoesThrough(order.Outcome)) {
      const Point at = MarkOnRing(RingPath(route.Unit, RingRadius)).At;
      DrawPlus(surface_, Pen(route, MoveWidth), at, MarkReach);
    }
    if (order.Outcome != Outcome::Entered || model::FindUnitAt(game_, order.Location) != 0) return;
    DrawUnit(surface_, StyleOf(game_.Countries, options_), order.UnitType,
             UnitPoint(model::PlaceOf(*game_.Map, order.Location)), route.Power, 1);
  }

 private:
  OrderPen Pen(const OrderRoute& route, double width) const {
    return PenOf(game_.Countries[route.Power], options_.Mode, width);
  }

  /// On a curve the head points along the chord of its own length.
  static Spot HeadSpot(const Path& line) {
    const Point base = SpotAt(line, LengthOf(line) - HeadLength).At;
    return {line.back(), Towards(base, line.back())};
  }

  /// Whether another unit has taken the place, so that the ordered one lies on the label.
  bool HasAttacker(const OrderOutcome& order) const {
    return std::any_of(game_.Units.begin(), game_.Units.end(), [&order](const model::Unit& unit) {
      return unit.Status != model::Dislodged && model::SamePlace(unit.Location, order.Location) &&
             (unit.Power != order.Power || unit.UnitType != order.UnitType);
    });
  }

  /// At the lower right of the ring, clear of labels and of ships' funnels.
  static Spot MarkOnRing(const Path& ring) { return SpotAt(ring, LengthOf(ring) / 8); }

  void DrawMark(const OrderPen& pen, Outcome outcome, Spot spot) const {
    if (outcome == Outcome::Failed) DrawBar(surface_, pen, spot);
    if (outcome == Outcome::Cut) DrawCut(surface_, pen, spot);
    if (outcome == Outcome::Void) DrawCross(surface_, pen, spot.At, MarkReach);
  }

  /// A supported or convoyed move that nobody ordered.
  void DrawUnordered(const OrderRoute& route) const {
    const Path& line = route.Unordered.Line;
    if (line.empty()) return;
    const OrderPen pen = Pen(route, OtherWidth);
    DrawPath(surface_, pen, line, LineForm::Dots);
    DrawHead(surface_, pen, HeadSpot(line), false);
  }

  Surface& surface_;
  const model::GameState& game_;
  const settings::MapOptions& options_;
};

/// Whether an order is drawn as a ring: the unit stays because it was told to, or because its move
/// or support leads to where it stands. A hold that was only assumed for lack of an order shows a
/// ring only where it failed.
bool IsRing(const OrderRoute& route) {
  const OrderOutcome& order = *route.Order;
  if (order.Kind == orders::OrderKind::Hold) return !order.Unordered || !GoesThrough(order.Outcome);
  return route.Way.Line.empty() &&
         (order.Kind == orders::OrderKind::Move || order.Kind == orders::OrderKind::Support);
}

bool IsSupportLine(const OrderRoute& route) {
  return route.Order->Kind == orders::OrderKind::Support && !route.Way.Line.empty();
}

}  // namespace

void DrawOrdersBelowUnits(Surface& surface, const model::GameState& game,
                          std::span<const OrderRoute> routes, const settings::MapOptions& options) {
  const Artist artist(surface, game, options);
  // What is void lies below what counts.
  std::vector<OrderRoute> sorted(routes.begin(), routes.end());
  std::stable_partition(sorted.begin(), sorted.end(), [](const OrderRoute& route) {
    return route.Order->Outcome == Outcome::Void;
  });
  for (const OrderRoute& route : sorted) {
    if (IsRing(route)) artist.Draw(&Artist::DrawRing, route);
    if (route.Order->Kind == orders::OrderKind::Convoy) artist.Draw(&Artist::DrawConvoy, route);
    if (IsSupportLine(route)) artist.Draw(&Artist::DrawSupport, route);
  }
  for (const OrderRoute& route : sorted) {
    if (!IsSupportLine(route) && !route.Way.Line.empty()) artist.Draw(&Artist::DrawArrow, route);
  }
  for (const OrderRoute& route : sorted) {
    if (IsSupportLine(route)) artist.Draw(&Artist::DrawSupportEnd, route);
  }
}

void DrawOrdersAboveUnits(Surface& surface, const model::GameState& game,
                          std::span<const OrderRoute> routes, const settings::MapOptions& options) {
  const Artist artist(surface, game, options);
  for (const OrderRoute& route : routes) {
    if (route.Order->Kind == orders::OrderKind::Disband) artist.Draw(&Artist::DrawDisband, route);
    if (route.Order->Kind == orders::OrderKind::Build) artist.Draw(&Artist::DrawBuild, route);
  }
}

std::vector<int> LabelsUnder(std::span<const OrderRoute> routes,
                             const std::vector<LabelBoxes>& labels) {
  std::vector<int> rows;
  for (std::size_t i = 0; i < labels.size(); ++i) {
    const auto isUnder = [&boxes = labels[i]](const OrderRoute& route) {
      return boxes.AreTouched(route.Way.Line, LineReach) ||
             boxes.AreTouched(route.Unordered.Line, LineReach);
    };
    if (std::ranges::any_of(routes, isUnder)) rows.push_back(static_cast<int>(i) + 1);
  }
  return rows;
}

}  // namespace orb::render
