#include "adjudication/usual/plans.h"

#include "adjudication/usual/readings.h"
#include "model/lookups.h"
#include "model/place.h"
#include "orders/binding.h"

namespace orb::adjudication::usual {
namespace {

using model::Map;
using orders::OrderKind;
using orders::OrderLine;
using orders::OrderResult;

template <class List>
auto& At(List& list, int index) {
  return list[static_cast<std::size_t>(index)];
}

void RejectImpossible(Resolution& resolution, const orders::Waters& waters) {
  const Map& map = *resolution.Map;
  for (OrderLine& order : resolution.Orders) {
    if (!order.Active) continue;
    if (IsMove(order) && !IsPossibleMove(map, waters, order)) {
      orders::Reject(order, OrderResult::ImpossibleMove);
    } else if (IsSupport(order) && !IsPossibleSupport(map, order)) {
      orders::Reject(order, OrderResult::ImpossibleSupport);
    } else if (IsConvoy(order) && !IsPossibleConvoy(resolution, order)) {
      orders::Reject(order, OrderResult::ImpossibleConvoy);
    }
  }
}

void PlaceUnits(const Resolution& resolution, Plans& plans) {
  const Map& map = *resolution.Map;
  plans.Count = resolution.Pieces.Count();
  for (int u = 1; u <= plans.Count; ++u) {
    const orders::Piece& piece = resolution.Pieces[u];
    Plan& plan = At(plans.Units, u);
    plan.Power = piece.Power;
    plan.Place = piece.Location == 0 ? std::int16_t{0} : map.Places[piece.Location];
    plan.Order = resolution.OrdersOfUnits[u];
    const OrderLine& order = resolution.Orders[plan.Order];
    if (order.Active) plan.Kind = order.Kind;
    if (order.Active && IsMove(order)) plan.Aim = map.Places[order.Target];
    At(plans.OfPower, plan.Power).Add(u);
    At(plans.At, plan.Place) = static_cast<std::int8_t>(u);
    if (plan.Kind == OrderKind::Move) {
      plans.Moves.Add(u);
      At(plans.MovesInto, plan.Aim).Add(u);
    }
  }
}

/// Whether the convoy is of just this unit's move.
bool Convoys(const Resolution& resolution, const Plans& plans, const OrderLine& convoy, int unit) {
  return plans.Moves.Has(unit) &&
         model::IsSamePlace(*resolution.Map, convoy.Target2,
                            resolution.Orders[plans.Of(unit).Order].Target);
}

void MatchConvoys(const Resolution& resolution, Plans& plans) {
  for (int u = 1; u <= plans.Count; ++u) {
    Plan& plan = At(plans.Units, u);
    if (plan.Kind != OrderKind::Convoy) continue;
    const OrderLine& order = resolution.Orders[plan.Order];
    const int army = UnitMeant(resolution, orders::OtherPiece(order));
    if (!Convoys(resolution, plans, order, army)) continue;
    plan.Other = static_cast<std::int8_t>(army);
    At(plans.CarriersOf, army).Add(u);
  }
}

/// An army's move goes by convoy if its target is not adjacent, or if there is a whole chain of
/// fleets ordered to convoy just this move with a fleet of the army's own power in it.
bool GoesByConvoy(const Resolution& resolution, const Plans& plans, int unit) {
  const orders::Piece& piece = resolution.Pieces[unit];
  if (piece.UnitType != model::UnitType::Army) return false;
  const Map& map = *resolution.Map;
  const Plan& plan = plans.Of(unit);
  if (!model::IsAdjacent(map, piece.UnitType, StandingPlace(map, piece),
                         resolution.Orders[plan.Order].Target)) {
    return true;
  }
  const UnitSet carriers = plans.Carriers(unit);
  for (const int fleet : carriers& plans.UnitsOf(plan.Power)) {
    if (HasChainThrough(plans.Waters, carriers, fleet, plan.Place, plan.Aim)) return true;
  }
  return false;
}

/// Convoys of an army that goes by land, which nobody asked for, are void.
void ChooseWays(const Resolution& resolution, Plans& plans) {
  for (const int u : plans.Moves) {
    if (GoesByConvoy(resolution, plans, u)) {
      At(plans.Units, u).ByConvoy = true;
      plans.Convoyed.Add(u);
      continue;
    }
    for (const int fleet : plans.Carriers(u))
      At(plans.Units, fleet).Other = 0;
    At(plans.CarriersOf, u) = {};
  }
}

/// A support to hold matches any order but a possible move; one of a move just that move. A coast
/// that it names for a fleet's destination must be that of the move.
bool Matches(const Resolution& resolution, const Plans& plans, const OrderLine& support,
             int supported) {
  const bool moves = plans.Moves.Has(supported);
  if (support.Kind2 == OrderKind::Hold) return !moves;
  if (!moves) return false;
  const Map& map = *resolution.Map;
  const int target = resolution.Orders[plans.Of(supported).Order].Target;
  const bool namesCoast = model::IsCoast(model::LocationName(map, support.Target2));
  return namesCoast ? support.Target2 == target : model::IsSamePlace(map, support.Target2, target);
}

void MatchSupports(const Resolution& resolution, Plans& plans) {
  for (int u = 1; u <= plans.Count; ++u) {
    Plan& plan = At(plans.Units, u);
    if (plan.Kind != OrderKind::Support) continue;
    const OrderLine& order = resolution.Orders[plan.Order];
    plan.Aim = resolution.Map->Places[orders::SupportedPlace(order)];
    const int supported = UnitMeant(resolution, orders::OtherPiece(order));
    if (supported == 0 || !Matches(resolution, plans, order, supported)) continue;
    plan.Other = static_cast<std::int8_t>(supported);
    plans.Supports.Add(u);
    At(plans.SupportersOf, supported).Add(u);
  }
}

/// Puts what matches into the order table: what nothing matches is rejected.
void LinkOrders(Resolution& resolution, const Plans& plans) {
  for (int u = 1; u <= plans.Count; ++u) {
    const Plan& plan = plans.Of(u);
    OrderLine& order = resolution.Orders[plan.Order];
    order.ViaConvoy = plan.ByConvoy;
    if (plan.Kind != OrderKind::Support && plan.Kind != OrderKind::Convoy) continue;
    if (plan.Other == 0) {
      orders::Reject(order, OrderResult::NotUsed);
    } else {
      order.LinkedOrder = plans.Of(plan.Other).Order;
    }
  }
}

}  // namespace

bool IsHeadToHead(const Plans& plans, int unit, int other) {
  const Plan& a = plans.Of(unit);
  const Plan& b = plans.Of(other);
  return plans.Moves.Has(unit) && plans.Moves.Has(other) && !a.ByConvoy && !b.ByConvoy &&
         a.Aim == b.Place && b.Aim == a.Place;
}

Plans MakePlans(Resolution& resolution) {
  Plans plans;
  plans.Waters = orders::FindWaters(*resolution.Map, resolution.Pieces);
  RejectImpossible(resolution, plans.Waters);
  PlaceUnits(resolution, plans);
  MatchConvoys(resolution, plans);
  ChooseWays(resolution, plans);
  MatchSupports(resolution, plans);
  LinkOrders(resolution, plans);
  return plans;
}

}  // namespace orb::adjudication::usual
