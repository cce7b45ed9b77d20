#include "adjudication/retreats.h"

#include "adjudication/stage_steps.h"
#include "model/lookups.h"
#include "model/place.h"
#include "orders/parser.h"

#include <algorithm>
#include <utility>

namespace orb::adjudication {
namespace {

using model::GameState;
using model::Messages;
using orders::OrderKind;
using orders::OrderLine;
using orders::OrderResult;
using orders::OrderTable;
using orders::Questions;

bool IsRetreat(const OrderLine& order) {
  return order.Kind == OrderKind::Retreat;
}

bool FindDislodgedUnits(const GameState& game, Resolution& resolution, Questions& questions) {
  OrderTable& table = resolution.Orders;
  for (int k = 1; k <= table.Count(); ++k) {
    OrderLine& order = table[k];
    if (!order.Active) continue;
    order.UnitIndex = 0;
    for (int u = 1; u <= game.Units.Count(); ++u) {
      const bool fits = resolution.Pieces[u] == orders::OrderedPiece(order);
      if (fits && game.Units[u].Status == model::Dislodged) {
        order.UnitIndex = static_cast<std::int16_t>(u);
      }
    }
    if (order.UnitIndex != 0) continue;
    orders::Reject(order, OrderResult::NoSuchUnit);
    if (!questions.GoOn(k, model::WarningText(order.Text, "no such unit."))) return false;
  }
  return true;
}

/// Whether the unit has an order, valid or not: a rejected one was asked about already.
bool IsOrdered(const OrderTable& table, const orders::Piece& piece) {
  return std::any_of(table.begin(), table.end(),
                     [&](const OrderLine& order) { return orders::OrderedPiece(order) == piece; });
}

bool DisbandUnordered(const GameState& game, Resolution& resolution, Questions& questions) {
  for (int u = 1; u <= game.Units.Count(); ++u) {
    const orders::Piece& piece = resolution.Pieces[u];
    if (game.Units[u].Status != model::Dislodged || IsOrdered(resolution.Orders, piece)) continue;
    OrderLine& order =
        orders::SupplyOrder(*game.Map, piece, u, OrderKind::Disband, " disband", resolution.Orders);
    order.Result = OrderResult::Unordered;
    const std::string unit = UnitName(*game.Map, order);
    if (!questions.Messages().Warn(model::WarningText(unit + " unordered."))) return false;
  }
  return true;
}

bool MatchRetreatsToUnits(const GameState& game, Resolution& resolution, Questions& questions) {
  return FindDislodgedUnits(game, resolution, questions) &&
         DisbandUnordered(game, resolution, questions);
}

void CheckRetreatMoves(const GameState& game, OrderTable& table) {
  const model::Map& map = *game.Map;
  for (OrderLine& order : table) {
    if (!order.Active || !IsRetreat(order)) continue;
    if (!model::CanStandIn(map, order.UnitType, order.Target) ||
        !model::IsAdjacent(map, order.UnitType, order.Location, order.Target)) {
      orders::Reject(order, OrderResult::ImpossibleMove);
    }
    // Also looked at after an impossible move, and reported in its place. A unit in the way only
    // makes the retreat fail later; a standoff rejects it.
    if (game.Provinces[order.Target].Uncontested) continue;
    if (model::FindUnitAt(game, order.Target) != 0) {
      order.Result = OrderResult::Occupied;
    } else {
      orders::Reject(order, OrderResult::Standoff);
    }
  }
}

/// Another active retreat to the same place, failed or not; 0 for none.
int CollidingRetreat(const model::Map& map, const OrderTable& table, int i) {
  for (int k = 1; k <= table.Count(); ++k) {
    if (k != i && IsRetreat(table[k]) && table[k].Active &&
        model::IsSamePlace(map, table[k].Target, table[i].Target)) {
      return k;
    }
  }
  return 0;
}

void Lose(OrderLine& order, Reason& reason, Ruling ruling, int blocker) {
  order.Failed = true;
  order.Pending = false;
  reason.Ruling = ruling;
  reason.Blocker = static_cast<std::int16_t>(blocker);
}

}  // namespace

bool CheckRetreats(const GameState& game, Resolution& resolution, Messages& messages) {
  OrderTable& table = resolution.Orders;
  Questions questions(messages);
  orders::ParseOrders(*game.Map, model::Stage::Retreats, table);
  const bool goesOn = orders::CheckOrderSyntax(table, questions) &&
                      MatchRetreatsToUnits(game, resolution, questions);
  resolution.StoppedAt = questions.StoppedAt();
  if (goesOn) CheckRetreatMoves(game, table);
  return goesOn;
}

void ResolveRetreatStandoffs(const GameState& game, Resolution& resolution) {
  OrderTable& table = resolution.Orders;
  resolution.Reasons.SetCount(table.Count());
  for (OrderLine& order : table)
    order.Pending = order.Active;
  for (int i = 1; i <= table.Count(); ++i) {
    OrderLine& order = table[i];
    if (!IsRetreat(order) || !order.Pending || !order.Active) continue;
    Reason& reason = resolution.Reasons[i];
    // Dislodged units have not left yet: they are in each other's way, too.
    const model::Unit& unit = game.Units[order.UnitIndex];
    if (model::SamePlace(model::LocationName(*game.Map, order.Target), unit.DislodgedFrom)) {
      Lose(order, reason, Ruling::BackToAttacker, 0);
    } else if (const int occupant = model::FindUnitAt(game, order.Target); occupant != 0) {
      Lose(order, reason, Ruling::PlaceTaken, occupant);
    } else if (const int other = CollidingRetreat(*game.Map, table, i); other != 0) {
      Lose(order, reason, Ruling::RetreatsCollide, other);
    }
  }
}

Resolution ResolveRetreats(GameState& game, Messages& messages) {
  Resolution resolution =
      StartResolution(model::Stage::Retreats, game, std::move(game.RetreatsList));
  if (!CheckRetreats(game, resolution, messages)) return resolution;
  ResolveRetreatStandoffs(game, resolution);
  WriteRetreatReport(game, resolution);
  CarryOutRetreats(game, resolution.Orders);
  game.RetreatsList.clear();
  EndMovement(game);
  resolution.Completed = true;
  return resolution;
}

}  // namespace orb::adjudication
