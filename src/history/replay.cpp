#include "history/replay.h"

#include "history/unit_matching.h"
#include "model/lookups.h"
#include "model/seasons.h"
#include "orders/binding.h"
#include "orders/entered_orders.h"

#include <algorithm>

namespace orb::history {
namespace {

using model::GameState;
using model::Unit;
using orders::OrderOutcome;
using orders::Outcome;

bool IsDislodged(const Unit& unit) {
  return unit.Status == model::Dislodged;
}

/// Units of another status are never drawn.
bool IsDrawn(const Unit& unit) {
  return unit.Status.empty() || IsDislodged(unit);
}

/// Whether a unit that was dislodged can have come to its place by a retreat: a move to a place
/// marks it as contested, and no retreat may enter such a place.
bool MayHaveRetreated(const GameState& game, const Unit& unit) {
  return !unit.DislodgedFrom.empty() &&
         game.Provinces[model::FindProvince(*game.Map, unit.Location)].Uncontested;
}

/// Throws IndexOutOfRange for a drawn unit of unknown place or power, before anything is drawn.
void CheckKnown(const GameState& game) {
  for (const Unit& unit : game.Units) {
    if (!IsDrawn(unit)) continue;
    model::PlaceOf(*game.Map, unit.Location);
    static_cast<void>(game.Countries[model::FindCountry(unit.Power)]);
  }
}

/// What the unit's row tells of the last season.
UnitChange RecordedChange(const GameState& game, const Unit& unit) {
  UnitChange change{unit.Power, unit.UnitType, {}, unit.Location, false, IsDislodged(unit), false};
  if (game.Stage == model::Stage::Moves) {
    // Before the moves nothing has happened; a unit still marked as dislodged stands aside.
    change.From = unit.Location;
    change.DislodgedAtFirst = change.DislodgedAtLast;
    return change;
  }
  if (HasKnownStart(*game.Map, unit)) change.From = unit.PreviousLocation;
  change.MayHaveRetreated = MayHaveRetreated(game, unit);
  return change;
}

bool IsSameUnit(const OrderOutcome& order, const OrderOutcome& other) {
  return order.Power == other.Power && order.UnitType == other.UnitType &&
         order.Location == other.Location;
}

/// Whether an order proves that its unit existed. A void order may be for a unit that never did,
/// unless that unit had to retreat or disband later.
bool TellsOfUnit(const model::Map& map, const OrderOutcome& order,
                 const std::vector<OrderOutcome>& outcomes) {
  if (!IsMovesStageOrder(order) || model::FindCountry(order.Power) == 0 ||
      model::FindProvince(map, order.Location) == 0) {
    return false;
  }
  return order.Outcome != Outcome::Void ||
         std::any_of(outcomes.begin(), outcomes.end(), [&](const OrderOutcome& other) {
           return IsSameUnit(order, other) && (other.Kind == orders::OrderKind::Retreat ||
                                               other.Kind == orders::OrderKind::Disband);
         });
}

/// Adds the units that had orders but are no longer in the tables.
void AddGoneUnits(const model::Map& map, const std::vector<OrderOutcome>& outcomes,
                  std::vector<UnitChange>& changes) {
  for (const OrderOutcome& order : outcomes) {
    const bool known = std::any_of(changes.begin(), changes.end(), [&](const UnitChange& change) {
      return change.From == order.Location && change.Power == order.Power &&
             change.UnitType == order.UnitType;
    });
    if (known || !TellsOfUnit(map, order, outcomes)) continue;
    changes.push_back({order.Power, order.UnitType, order.Location, {}, false, false, false});
  }
}

/// Puts new units after the others, so that the journeys begin with those of the start's units.
void SortNewLast(std::vector<UnitChange>& changes) {
  std::stable_partition(changes.begin(), changes.end(),
                        [](const UnitChange& change) { return !change.From.empty(); });
}

/// The situation before the moves, as far as it is recorded.
GameState StartOf(const GameState& game, const std::vector<UnitChange>& changes) {
  if (game.Stage == model::Stage::Moves) return game;
  GameState start = game;
  start.Stage = model::Stage::Moves;
  model::RestoreOwners(start);
  start.Units.SetCount(0);
  for (const UnitChange& change : changes) {
    // With gone units and new ones there may have been more than fit into the table at one time.
    if (change.From.empty() || start.Units.Count() == model::UnitBound) continue;
    start.Units.Append({change.Power, change.UnitType, change.From, {}, {}, {}});
  }
  return start;
}

/// The listed orders of a situation whose moves are still to be resolved, without the moves that
/// are impossible: those could only be shown as bounces that never took place.
std::vector<OrderOutcome> ListedOrders(const GameState& game) {
  std::vector<OrderOutcome> listed = orders::EnteredOrders(game);
  const model::Map& map = *game.Map;
  std::erase_if(listed, [&](const OrderOutcome& order) {
    return order.Kind == orders::OrderKind::Move &&
           !orders::IsPossibleMove(map, model::UnitTypeOf(order.UnitType),
                                   model::FindProvince(map, order.Location),
                                   model::FindProvince(map, order.Destination), order.ViaConvoy);
  });
  return listed;
}

UnitChange ChangeBetween(const Unit& before, const Unit* after, bool mayHaveRetreated) {
  UnitChange change{before.Power,        before.UnitType, before.Location, {},
                    IsDislodged(before), false,           mayHaveRetreated};
  if (after == nullptr) return change;
  change.To = after->Location;
  change.DislodgedAtLast = IsDislodged(*after);
  return change;
}

std::vector<UnitChange> ChangesBetween(const GameState& earlier, const GameState& later) {
  const UnitMatches matches = MatchUnits(earlier, later);
  // Only then do the later situation's marks on the places tell of just the moves in between.
  const bool isNextSeason = SeasonsBetween(earlier, later) == 1;
  std::vector<UnitChange> changes;
  for (int i = 1; i <= earlier.Units.Count(); ++i) {
    if (!IsDrawn(earlier.Units[i])) continue;
    const int match = matches[static_cast<std::size_t>(i)];
    const Unit* after = match == 0 ? nullptr : &later.Units[match];
    const bool retreated = isNextSeason && after != nullptr && MayHaveRetreated(later, *after);
    changes.push_back(ChangeBetween(earlier.Units[i], after, retreated));
  }
  for (int k = 1; k <= later.Units.Count(); ++k) {
    const Unit& unit = later.Units[k];
    if (!IsDrawn(unit) || std::find(matches.begin(), matches.end(), k) != matches.end()) continue;
    changes.push_back(
        {unit.Power, unit.UnitType, {}, unit.Location, false, IsDislodged(unit), false});
  }
  return changes;
}

}  // namespace

Replay SeasonReplay(const GameState& game, const std::vector<OrderOutcome>& outcomes) {
  CheckKnown(game);
  std::vector<UnitChange> changes;
  for (const Unit& unit : game.Units) {
    if (IsDrawn(unit)) changes.push_back(RecordedChange(game, unit));
  }
  if (game.Stage != model::Stage::Moves) AddGoneUnits(*game.Map, outcomes, changes);
  SortNewLast(changes);
  return {StartOf(game, changes), FindJourneys(*game.Map, changes, outcomes), game};
}

Replay ReplayBetween(const GameState& earlier, const GameState& later) {
  CheckKnown(earlier);
  CheckKnown(later);
  // Only then are the earlier situation's orders those that led to the later one.
  const bool resolved = earlier.Stage == model::Stage::Moves && SeasonsBetween(earlier, later) == 1;
  const auto orders = resolved ? ListedOrders(earlier) : std::vector<OrderOutcome>();
  return {earlier, FindJourneys(*earlier.Map, ChangesBetween(earlier, later), orders), later};
}

}  // namespace orb::history
