#include "adjudication/moves.h"

#include "adjudication/move_resolution.h"
#include "adjudication/stage_steps.h"
#include "adjudication/support_cutting.h"
#include "model/lookups.h"
#include "orders/binding.h"
#include "orders/parser.h"

#include <bitset>
#include <utility>

namespace orb::adjudication {
namespace {

using model::GameState;
using orders::IsConvoy;
using orders::IsMove;
using orders::OrderLine;

/// The first cutting of supports. Whether an attack will succeed does not matter; only moves by
/// convoy must wait until it is known whether their convoys hold.
void CutByMovesOnLandAndSea(Battlefield& field) {
  for (int k = 1; k <= field.Orders().Count(); ++k) {
    const OrderLine& order = field.Order(k);
    if (order.Active && IsMove(order) && !order.ViaConvoy) CutSupports(field, k);
  }
}

/// The second cutting, by the armies whose convoys held. The attacks on their fleets are decided by
/// then, so no army saves its own convoy by cutting a support.
void CutByConvoyedMoves(Battlefield& field) {
  for (int k = 1; k <= field.Orders().Count(); ++k) {
    const OrderLine& order = field.Order(k);
    if (order.Active && !order.Failed && IsMove(order) && order.ViaConvoy) CutSupports(field, k);
  }
}

/// A move to where no army could stand, against a unit ordered to convoy.
bool AttacksConvoyingFleet(const model::Map& map, Battlefield& field, int k) {
  if (!IsMove(field.Order(k))) return false;
  const int unit = field.LastUnitAt(k);
  return unit != 0 && IsConvoy(field.Order(field.OrderOf(unit))) &&
         !model::CanStandIn(map, model::UnitType::Army, field.Order(k).Target);
}

/// The moves of the first run. They are found before it, since the second run must leave out just
/// these.
OrderSet FindConvoyAttacks(const model::Map& map, Battlefield& field) {
  OrderSet attacks;
  for (int k = 1; k <= field.Orders().Count(); ++k) {
    attacks.set(static_cast<std::size_t>(k), AttacksConvoyingFleet(map, field, k));
  }
  return attacks;
}

/// The first run. The other moves are not decided in it, but they count as rivals.
void ResolveConvoyAttacks(Battlefield& field, const OrderSet& attacks) {
  for (int k = 1; k <= field.Orders().Count(); ++k) {
    OrderLine& order = field.Order(k);
    order.Pending = order.Active && attacks.test(static_cast<std::size_t>(k));
  }
  DecideMoves(field);
}

void ResolveOtherMoves(Battlefield& field, const OrderSet& attacks) {
  for (int k = 1; k <= field.Orders().Count(); ++k) {
    OrderLine& order = field.Order(k);
    order.Pending = order.Active && !attacks.test(static_cast<std::size_t>(k));
  }
  DecideMoves(field);
}

/// Losing any one of its fleets breaks a convoy. Returns whether there is an active convoy order.
bool DisruptConvoys(GameState& game, Resolution& resolution) {
  bool convoyExists = false;
  for (int k = 1; k <= resolution.Orders.Count(); ++k) {
    const OrderLine& order = resolution.Orders[k];
    if (!order.Active || !IsConvoy(order)) continue;
    convoyExists = true;
    if (game.Units[order.UnitIndex].Status != model::Dislodged) continue;
    OrderLine& convoyed = resolution.Orders[order.LinkedOrder];
    orders::Reject(convoyed, orders::OrderResult::ConvoyFailed);
    resolution.Reasons[order.LinkedOrder].LostFleet = static_cast<std::int16_t>(k);
    if (convoyed.UnitIndex != 0) resolution.Force[convoyed.UnitIndex] = 0;
  }
  return convoyExists;
}

/// Marks every place that a move with any force left was aimed at. A place that somebody entered is
/// marked as well: it is occupied, so the mark forbids nothing there.
void MarkStandoffs(GameState& game, const Resolution& resolution) {
  const model::Map& map = *game.Map;
  std::bitset<model::ProvinceBound + 1> contested;
  for (const OrderLine& order : resolution.Orders) {
    if (!IsMove(order) || !order.Active || resolution.Force[order.UnitIndex] <= 0) continue;
    contested.set(static_cast<std::size_t>(map.Places[order.Target]));
  }
  for (int p = 1; p <= game.Provinces.Count(); ++p)
    game.Provinces[p].Uncontested = !contested.test(static_cast<std::size_t>(map.Places[p]));
}

}  // namespace

bool CheckOrders(Resolution& resolution, model::Messages& messages) {
  orders::OrderTable& table = resolution.Orders;
  const model::Map& map = *resolution.Map;
  orders::Questions questions(messages);
  orders::ParseOrders(map, model::Stage::Moves, table);
  const bool goesOn = orders::CheckOrderSyntax(table, questions) &&
                      orders::BindOrdersToUnits(map, resolution.Pieces, table,
                                                resolution.OrdersOfUnits, questions) &&
                      orders::CheckImpossibleOrders(map, table, questions);
  resolution.StoppedAt = questions.StoppedAt();
  return goesOn;
}

Resolution ResolveMoves(GameState& game, model::Messages& messages) {
  Resolution resolution = StartResolution(model::Stage::Moves, game, std::move(game.OrdersList));
  SavePreviousPositions(game);
  if (!CheckOrders(resolution, messages)) return resolution;
  resolution.Reasons.SetCount(resolution.Orders.Count());
  Battlefield field(game, resolution);
  CutByMovesOnLandAndSea(field);
  // Attacks on convoying fleets come first: they decide which convoyed armies arrive at all, and
  // only those can cut supports and oppose the other moves.
  const OrderSet convoyAttacks = FindConvoyAttacks(*game.Map, field);
  ResolveConvoyAttacks(field, convoyAttacks);
  if (DisruptConvoys(game, resolution)) {
    messages.Show("Convoys are not fully checked.", model::Icon::Information);
  }
  CutByConvoyedMoves(field);
  ResolveOtherMoves(field, convoyAttacks);
  CarryOutMoves(game, resolution);
  MarkStandoffs(game, resolution);
  WriteMoveReport(game, resolution);
  AdvanceAfterMoves(game);
  resolution.Completed = true;
  return resolution;
}

}  // namespace orb::adjudication
