#include "render/animation_view.h"

#include "model/lookups.h"
#include "render/drawing.h"
#include "render/labels.h"
#include "render/map_view.h"
#include "render/paths.h"
#include "render/symbols.h"
#include "settings/map_options.h"

#include <algorithm>
#include <array>
#include <vector>

namespace orb::render {
namespace {

// Seconds at normal speed.
constexpr double FirstRest = 0.5;
constexpr double MovesTime = 1.6;
constexpr double RetreatsTime = 1.2;
constexpr double AdjustmentsTime = 0.9;
constexpr double RestAfterStage = 0.3;
constexpr double LastRest = 0.4;

/// The part of the moves' time after which attackers are near enough to push.
constexpr double PushStart = 0.7;

/// Units drawn smaller than this could not be seen.
constexpr double LeastScale = 0.05;

bool StandsAside(const history::Journey& journey) {
  return journey.Dislodged || journey.DislodgedAtFirst;
}

bool VanishesFromAside(const history::Journey& journey) {
  return journey.Vanishes && StandsAside(journey) && journey.Retreat.empty();
}

bool TakesPartInMoves(const history::Journey& journey) {
  return !journey.Aim.empty() || journey.Dislodged;
}

bool TakesPartInRetreats(const history::Journey& journey) {
  return !journey.Retreat.empty() || VanishesFromAside(journey);
}

bool TakesPartInAdjustments(const history::Journey& journey) {
  return journey.Appears || (journey.Vanishes && !VanishesFromAside(journey));
}

/// How far each stage has come, 0..1, and how long all take together.
struct Clock {
  double Moves = 0, Retreats = 0, Adjustments = 0;
  double Seconds = FirstRest + LastRest;
};

/// A stage that takes time, in seconds from the beginning.
struct Span {
  double Begin = 0, Length = 0;
  bool Happens = false;
};

/// Moves, retreats and adjustments.
std::array<Span, 3> SpansOf(const std::vector<history::Journey>& journeys) {
  double begin = FirstRest;
  const auto span = [&](bool (*takesPart)(const history::Journey&), double length) {
    const Span whole{begin, length, std::any_of(journeys.begin(), journeys.end(), takesPart)};
    if (whole.Happens) begin += length + RestAfterStage;
    return whole;
  };
  return {span(TakesPartInMoves, MovesTime), span(TakesPartInRetreats, RetreatsTime),
          span(TakesPartInAdjustments, AdjustmentsTime)};
}

Clock ClockAt(const std::vector<history::Journey>& journeys, double seconds) {
  const std::array<Span, 3> spans = SpansOf(journeys);
  const auto done = [seconds](const Span& span) {
    return span.Happens ? std::clamp((seconds - span.Begin) / span.Length, 0.0, 1.0) : 1.0;
  };
  double end = FirstRest;
  for (const Span& span : spans) {
    if (span.Happens) end = span.Begin + span.Length + RestAfterStage;
  }
  return {done(spans[0]), done(spans[1]), done(spans[2]), end + LastRest};
}

/// A part of 0..1 made slow at both ends: the smoothstep curve.
double Eased(double part) {
  const double t = std::clamp(part, 0.0, 1.0);
  return t * t * (3 - 2 * t);
}

double Between(double from, double to, double part) {
  return from + (to - from) * part;
}

Point Between(Point from, Point to, double part) {
  return {Between(from.X, to.X, part), Between(from.Y, to.Y, part)};
}

/// Units stand below those that move, dislodged ones lie on top.
enum class Layer { Standing, Moving, Aside };

/// How a unit is drawn at one moment.
struct Pose {
  Point At;
  double Scale = 1;
  render::Layer Layer = Layer::Standing;
};

/// Moves the pose towards a place and a scale.
void Bring(Pose& pose, Point to, double scale, double part) {
  pose.At = Between(pose.At, to, part);
  pose.Scale = Between(pose.Scale, scale, part);
}

void MoveUnit(const model::Map& map, const history::Journey& journey, double part, Pose& pose) {
  if (journey.Aim.empty()) return;
  Path way = {pose.At};
  for (const std::string& fleet : journey.Fleets)
    way.push_back(UnitPoint(model::PlaceOf(map, fleet)));
  way.push_back(UnitPoint(model::PlaceOf(map, journey.Aim)));
  double gone = Eased(part);
  if (journey.Bounces) {
    // A unit that bounces and is dislodged too must be back home before it is pushed aside.
    const double done = journey.Dislodged ? std::min(1.0, part / PushStart) : part;
    gone = Eased(done < 0.5 ? 2 * done : 2 - 2 * done) / 2;
  }
  pose.At = SpotAt(way, gone * LengthOf(way)).At;
  if (part > 0 && part < 1) pose.Layer = Layer::Moving;
}

void PushUnit(const model::Map& map, const history::Journey& journey, double part, Pose& pose) {
  if (!journey.Dislodged || part <= PushStart) return;
  // A unit can be dislodged from the place it has just reached, too.
  const model::Province& place =
      model::PlaceOf(map, history::HasMoved(journey) ? journey.Aim : journey.From);
  Bring(pose, LabelPoint(place), DislodgedScale, Eased((part - PushStart) / (1 - PushStart)));
  pose.Layer = Layer::Aside;
}

void RetreatUnit(const model::Map& map, const history::Journey& journey, double part, Pose& pose) {
  if (VanishesFromAside(journey)) {
    pose.Scale *= 1 - Eased(part);
  } else if (!journey.Retreat.empty()) {
    Bring(pose, UnitPoint(model::PlaceOf(map, journey.Retreat)), 1, Eased(part));
    if (part >= 1) pose.Layer = Layer::Standing;
  }
}

Pose PoseAt(const model::Map& map, const history::Journey& journey, const Clock& clock) {
  const model::Province& first = model::PlaceOf(map, journey.From);
  Pose pose{UnitPoint(first)};
  if (journey.DislodgedAtFirst) {
    pose = {LabelPoint(first), DislodgedScale, Layer::Aside};
  } else {
    MoveUnit(map, journey, clock.Moves, pose);
    PushUnit(map, journey, clock.Moves, pose);
  }
  RetreatUnit(map, journey, clock.Retreats, pose);
  if (journey.Appears) {
    pose.Scale *= Eased(clock.Adjustments);
  } else if (TakesPartInAdjustments(journey)) {
    pose.Scale *= 1 - Eased(clock.Adjustments);
  }
  return pose;
}

/// The place on whose label a pose lies, once it lies there at rest; else 0.
int LabelUnder(const model::Map& map, const history::Journey& journey, const Pose& pose) {
  if (pose.Layer != Layer::Aside || pose.Scale != DislodgedScale) return 0;
  const bool hasMoved = !journey.DislodgedAtFirst && history::HasMoved(journey);
  const int row = model::FindProvince(map, hasMoved ? journey.Aim : journey.From);
  const Point label = LabelPoint(map.Provinces[row]);
  return pose.At.X == label.X && pose.At.Y == label.Y ? row : 0;
}

std::vector<ShownUnit> UnitsShown(const model::Map& map,
                                  const std::vector<history::Journey>& journeys,
                                  const std::vector<Pose>& poses) {
  std::vector<ShownUnit> shown;
  for (std::size_t i = 0; i < poses.size(); ++i) {
    const Pose& pose = poses[i];
    if (pose.Scale < LeastScale) continue;
    shown.push_back(
        {journeys[i].UnitType, pose.At, pose.Scale, LabelUnder(map, journeys[i], pose)});
  }
  return shown;
}

}  // namespace

double Seconds(const history::Replay& replay) {
  return ClockAt(replay.Journeys, 0).Seconds;
}

double AtRest(const history::Replay& replay, double progress) {
  const double whole = Seconds(replay);
  for (const Span& span : SpansOf(replay.Journeys)) {
    if (span.Happens && progress * whole < span.Begin + span.Length)
      return std::min(progress, span.Begin / whole);
  }
  return progress;
}

void DrawStill(const history::Replay& replay, const settings::MapOptions& options,
               const std::filesystem::path& dataDirectory, Surface& surface) {
  DrawBelowUnits(replay.Start, options, dataDirectory, surface);
}

void DrawMoving(const history::Replay& replay, const settings::MapOptions& options, double progress,
                Surface& surface) {
  const Clock clock = ClockAt(replay.Journeys, progress * Seconds(replay));
  std::vector<Pose> poses;
  poses.reserve(replay.Journeys.size());
  for (const history::Journey& journey : replay.Journeys)
    poses.push_back(PoseAt(*replay.Start.Map, journey, clock));
  const std::vector<ShownUnit> shown = UnitsShown(*replay.Start.Map, replay.Journeys, poses);
  HideLabelsUnder(surface, replay.Start, options, shown);
  const SymbolStyle style = StyleOf(replay.Start.Countries, options);
  for (const Layer layer : {Layer::Standing, Layer::Moving, Layer::Aside}) {
    for (std::size_t i = 0; i < poses.size(); ++i) {
      const Pose& pose = poses[i];
      if (pose.Layer != layer || pose.Scale < LeastScale) continue;
      const history::Journey& journey = replay.Journeys[i];
      DrawUnit(surface, style, journey.UnitType, pose.At, model::FindCountry(journey.Power),
               pose.Scale);
    }
  }
  DrawLabelsBeside(surface, *replay.Start.Map, shown);
  DrawAboveUnits(replay.Start, options, surface);
}

}  // namespace orb::render
