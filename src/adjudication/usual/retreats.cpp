#include "adjudication/usual/retreats.h"

#include "adjudication/stage_steps.h"
#include "adjudication/usual/readings.h"
#include "model/lookups.h"
#include "model/place.h"
#include "orders/binding.h"

#include <utility>

namespace orb::adjudication::usual {
namespace {

using model::GameState;
using orders::OrderKind;
using orders::OrderLine;
using orders::OrderResult;

/// The last unit that stands in the place when the moves are over; 0: none. Dislodged units have
/// left theirs to the attacker.
int UnitStandingAt(const Resolution& resolution, int row) {
  int standing = 0;
  for (int u = 1; u <= resolution.Pieces.Count(); ++u) {
    const bool stays = resolution.UnitsBefore[u].Status != model::Dislodged;
    if (stays && model::IsSamePlace(*resolution.Map, resolution.Pieces[u].Location, row))
      standing = u;
  }
  return standing;
}

void Lose(OrderLine& order, Reason& reason, Ruling ruling, int blocker) {
  order.Failed = true;
  reason.Ruling = ruling;
  reason.Blocker = static_cast<std::int16_t>(blocker);
}

/// Whether the retreat is possible; what stands in its way is put down.
void CheckRetreat(const GameState& game, Resolution& resolution, int k) {
  const model::Map& map = *game.Map;
  OrderLine& order = resolution.Orders[k];
  Reason& reason = resolution.Reasons[k];
  const int from = StandingPlace(map, orders::OrderedPiece(order));
  const model::Unit& unit = game.Units[order.UnitIndex];
  if (!model::CanStandIn(map, order.UnitType, order.Target) ||
      !model::IsAdjacent(map, order.UnitType, from, order.Target)) {
    orders::Reject(order, OrderResult::ImpossibleMove);
  } else if (model::SamePlace(model::LocationName(map, order.Target), unit.DislodgedFrom)) {
    Lose(order, reason, Ruling::BackToAttacker, 0);
  } else if (const int occupant = UnitStandingAt(resolution, order.Target); occupant != 0) {
    order.Result = OrderResult::Occupied;
    Lose(order, reason, Ruling::PlaceTaken, occupant);
  } else if (!game.Provinces[order.Target].Uncontested) {
    orders::Reject(order, OrderResult::Standoff);
  }
}

bool IsRetreatInPlay(const OrderLine& order) {
  return order.Active && order.Kind == OrderKind::Retreat && !order.Failed;
}

void LoseCollidingRetreats(Resolution& resolution) {
  orders::OrderTable& table = resolution.Orders;
  const model::Map& map = *resolution.Map;
  for (int i = 1; i <= table.Count(); ++i) {
    for (int k = 1; k <= table.Count(); ++k) {
      if (k == i || !IsRetreatInPlay(table[i]) || !IsRetreatInPlay(table[k])) continue;
      if (model::IsSamePlace(map, table[i].Target, table[k].Target))
        resolution.Reasons[i].Blocker = static_cast<std::int16_t>(k);
    }
  }
  for (int i = 1; i <= table.Count(); ++i) {
    const int other = resolution.Reasons[i].Blocker;
    if (IsRetreatInPlay(table[i]) && other != 0)
      Lose(table[i], resolution.Reasons[i], Ruling::RetreatsCollide, other);
  }
}

/// Whoever has no order disbands.
void SupplyDisbands(Resolution& resolution) {
  for (int u = 1; u <= resolution.Pieces.Count(); ++u) {
    if (resolution.UnitsBefore[u].Status != model::Dislodged) continue;
    bool ordered = false;
    for (const OrderLine& order : resolution.Orders) {
      ordered = ordered || order.UnitIndex == u;
    }
    if (ordered) continue;
    orders::SupplyOrder(*resolution.Map, resolution.Pieces[u], u, OrderKind::Disband, " disband",
                        resolution.Orders)
        .Result = OrderResult::Unordered;
  }
  resolution.Reasons.SetCount(resolution.Orders.Count());
}

}  // namespace

Resolution ResolveRetreats(GameState& game) {
  Resolution resolution =
      StartResolution(model::Stage::Retreats, game, std::move(game.RetreatsList));
  ReadAsMeant(resolution);
  SupplyDisbands(resolution);
  for (int k = 1; k <= resolution.Orders.Count(); ++k) {
    const OrderLine& order = resolution.Orders[k];
    if (order.Active && order.Kind == OrderKind::Retreat) CheckRetreat(game, resolution, k);
  }
  LoseCollidingRetreats(resolution);
  MirrorRepeats(resolution);
  WriteRetreatReport(game, resolution);
  CarryOutRetreats(game, resolution.Orders);
  game.RetreatsList.clear();
  EndMovement(game);
  resolution.Completed = true;
  return resolution;
}

}  // namespace orb::adjudication::usual
