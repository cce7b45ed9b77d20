#include "history/journeys.h"

#include "history/convoys.h"
#include "model/place.h"

#include <algorithm>

namespace orb::history {
namespace {

using model::Map;
using orders::OrderOutcome;
using orders::Outcome;
using Orders = std::vector<OrderOutcome>;

bool IsFor(const OrderOutcome& order, const UnitChange& unit) {
  return order.Location == unit.From && order.Power == unit.Power &&
         order.UnitType == unit.UnitType;
}

/// Whether the unit's place agrees with the move having been carried out. Of a unit that is gone
/// only the resolved order tells; otherwise a unit may have moved and retreated since.
bool Served(const OrderOutcome& move, const UnitChange& unit) {
  if (move.Outcome != Outcome::Succeeded && move.Outcome != Outcome::Entered) return false;
  return unit.To.empty() ? move.Outcome == Outcome::Succeeded : move.Destination == unit.To;
}

/// Of several moves ordered for a unit the last that served counts, else the first.
const OrderOutcome* FindMove(const Map& map, const UnitChange& unit, const Orders& orders) {
  const OrderOutcome* found = nullptr;
  for (const OrderOutcome& order : orders) {
    if (!IsFor(order, unit) || order.Kind != orders::OrderKind::Move ||
        order.Outcome == Outcome::Void)
      continue;
    if (model::FindProvince(map, order.Destination) == 0) continue;
    if (found == nullptr || Served(order, unit)) found = &order;
  }
  return found;
}

/// Whether it is known what became of the unit's order.
bool IsResolved(const UnitChange& unit, const Orders& orders) {
  return std::any_of(orders.begin(), orders.end(), [&](const OrderOutcome& order) {
    return IsFor(order, unit) && IsMovesStageOrder(order) && order.Outcome != Outcome::Entered;
  });
}

const OrderOutcome* FindRetreat(const Map& map, const UnitChange& unit, const Orders& orders) {
  const auto found = std::find_if(orders.begin(), orders.end(), [&](const OrderOutcome& order) {
    return IsFor(order, unit) && order.Kind == orders::OrderKind::Retreat &&
           order.Outcome == Outcome::Succeeded && model::FindProvince(map, order.Destination) != 0;
  });
  return found == orders.end() ? nullptr : &*found;
}

void SetMove(const Map& map, const UnitChange& unit, const Orders& orders, Journey& journey) {
  const OrderOutcome* move = FindMove(map, unit, orders);
  if (move != nullptr) {
    journey.Aim = move->Destination;
    journey.Fleets = FleetsOf(map, *move, orders);
    journey.Bounces = !Served(*move, unit);
  }
  const std::string& moved = move == nullptr || journey.Bounces ? unit.From : journey.Aim;
  if (unit.To.empty() || unit.To == moved) return;
  // The unit is not where its move left it: it was dislodged and retreated, or, where nothing is
  // known of its order, its move is read off its places.
  if (IsResolved(unit, orders) || unit.MayHaveRetreated) {
    journey.Dislodged = true;
    journey.Retreat = unit.To;
  } else {
    journey.Aim = unit.To;
    journey.Fleets.clear();
    journey.Bounces = false;
  }
}

void SetRetreat(const Map& map, const UnitChange& unit, const Orders& orders, Journey& journey) {
  if (journey.DislodgedAtFirst) {
    // It stood aside from the beginning, so wherever it went was a retreat.
    if (!unit.DislodgedAtLast) journey.Retreat = unit.To;
    return;
  }
  journey.Dislodged |= unit.DislodgedAtLast;
  // A retreat order tells of a unit that went aside and was gone later; others show by where they
  // are.
  if (!journey.Vanishes) return;
  if (const OrderOutcome* retreat = FindRetreat(map, unit, orders); retreat != nullptr) {
    journey.Dislodged = true;
    journey.Retreat = retreat->Destination;
  }
}

Journey JourneyOf(const Map& map, const UnitChange& unit, const Orders& orders) {
  Journey journey;
  journey.Power = unit.Power;
  journey.UnitType = unit.UnitType;
  journey.From = unit.From.empty() ? unit.To : unit.From;
  journey.Appears = unit.From.empty();
  journey.DislodgedAtFirst = journey.Appears ? unit.DislodgedAtLast : unit.DislodgedAtFirst;
  journey.Vanishes = unit.To.empty();
  if (journey.Appears) return journey;
  if (!journey.DislodgedAtFirst) SetMove(map, unit, orders, journey);
  SetRetreat(map, unit, orders, journey);
  return journey;
}

/// Whether another unit came to where this one stayed.
bool WasDislodged(const Journey& journey, const std::vector<Journey>& journeys) {
  return !HasMoved(journey) &&
         std::any_of(journeys.begin(), journeys.end(), [&](const Journey& other) {
           return HasMoved(other) && model::SamePlace(other.Aim, journey.From) &&
                  !model::SamePlace(other.From, journey.From);
         });
}

}  // namespace

bool HasMoved(const Journey& journey) {
  return !journey.Aim.empty() && !journey.Bounces;
}

bool IsMovesStageOrder(const OrderOutcome& order) {
  return order.Kind == orders::OrderKind::Move || order.Kind == orders::OrderKind::Hold ||
         order.Kind == orders::OrderKind::Support || order.Kind == orders::OrderKind::Convoy;
}

std::vector<Journey> FindJourneys(const Map& map, const std::vector<UnitChange>& changes,
                                  const Orders& orders) {
  std::vector<Journey> journeys;
  journeys.reserve(changes.size());
  for (const UnitChange& unit : changes)
    journeys.push_back(JourneyOf(map, unit, orders));
  // Only when all moves are known can it be told who was pushed aside by whom: a unit that vanished
  // without a recorded dislodgement, and whose place another one took, was dislodged and disbanded.
  for (Journey& journey : journeys) {
    if (journey.Vanishes && !journey.DislodgedAtFirst && !journey.Dislodged) {
      journey.Dislodged = WasDislodged(journey, journeys);
    }
  }
  return journeys;
}

}  // namespace orb::history
