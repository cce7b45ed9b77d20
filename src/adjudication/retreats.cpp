#include "adjudication/retreats.h"

#include "adjudication/stages.h"
#include "model/lookups.h"
#include "model/place.h"
#include "orders/later_stages.h"

#include <algorithm>
#include <utility>

namespace orb::adjudication {
namespace {

using model::GameState;
using model::Messages;
using model::Unit;
using orders::OrderLine;
using orders::OrderTable;

bool IsRetreat(const OrderLine& order) {
  return order.Kind == "RETREAT";
}

void ParseRetreatOrders(OrderTable& table) {
  std::string work;
  for (OrderLine& order : table) {
    orders::ParseRetreat(order, work);
  }
}

bool CheckRetreatSyntax(const model::Map& map, OrderTable& table, Messages& messages) {
  for (OrderLine& order : table) {
    if (orders::FindRetreatFault(map, order) == orders::SyntaxFault::None) continue;
    orders::Reject(order, "syntax error");
    if (!messages.Warn(model::WarningText(order.Text, "syntax error."))) return false;
  }
  return true;
}

bool IsFor(const OrderLine& order, const Unit& unit) {
  return unit.Power == order.Power && unit.UnitType == order.UnitType &&
         unit.Location == order.Location;
}

bool FindDislodgedUnits(const GameState& game, OrderTable& table, Messages& messages) {
  for (OrderLine& order : table) {
    if (!order.Active) continue;
    order.UnitIndex = 0;
    for (int u = 1; u <= game.Units.Count(); ++u) {
      const Unit& unit = game.Units[u];
      if (unit.Status == model::Dislodged && IsFor(order, unit)) {
        order.UnitIndex = static_cast<std::int16_t>(u);
      }
    }
    if (order.UnitIndex != 0) continue;
    orders::Reject(order, "no such unit");
    if (!messages.Warn(model::WarningText(order.Text, "no such unit."))) return false;
  }
  return true;
}

void AppendDisband(Unit& unit, int unitIndex, OrderTable& table) {
  OrderLine& order = table.Append();
  order.Text = model::UnitText(unit) + " disband";
  order.Power = unit.Power;
  order.UnitType = unit.UnitType;
  order.Location = unit.Location;
  order.Kind = "DISBAND";
  order.Result = "unordered";
  order.Active = true;
  order.UnitIndex = static_cast<std::int16_t>(unitIndex);
  unit.OrderIndex = static_cast<std::int16_t>(table.Count());
}

bool DisbandUnordered(GameState& game, OrderTable& table, Messages& messages) {
  for (int u = 1; u <= game.Units.Count(); ++u) {
    Unit& unit = game.Units[u];
    if (unit.Status != model::Dislodged) continue;
    unit.OrderIndex = 0;
    for (int k = 1; k <= table.Count(); ++k) {
      if (IsFor(table[k], unit)) unit.OrderIndex = static_cast<std::int16_t>(k);
    }
    if (unit.OrderIndex != 0) continue;
    AppendDisband(unit, u, table);
    if (!messages.Warn(model::WarningText(model::UnitText(unit) + " unordered."))) return false;
  }
  return true;
}

bool MatchRetreatsToUnits(GameState& game, OrderTable& table, Messages& messages) {
  return FindDislodgedUnits(game, table, messages) && DisbandUnordered(game, table, messages);
}

void CheckRetreatMoves(const GameState& game, OrderTable& table) {
  const model::Map& map = *game.Map;
  for (OrderLine& order : table) {
    if (!order.Active || !IsRetreat(order)) continue;
    const std::string& type = game.Units[order.UnitIndex].UnitType;
    if (!model::CanStandIn(map, type, order.Target) ||
        !model::IsAdjacent(map, type, order.Location, order.Target)) {
      orders::Reject(order, "impossible move");
    }
    if (game.Provinces[model::FindProvince(map, order.Target)].Uncontested) continue;
    if (model::FindUnitAt(game, order.Target) != 0) {
      order.Result = "occupied";
    } else {
      orders::Reject(order, "impossible (standoff)");
    }
  }
}

/// Another active retreat to the same place, failed or not; 0 for none.
int CollidingRetreat(const OrderTable& table, int i) {
  for (int k = 1; k <= table.Count(); ++k) {
    if (k != i && IsRetreat(table[k]) && table[k].Active &&
        model::SamePlace(table[k].Target, table[i].Target)) {
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

/// The last report line about the unit; a new one if there is none.
int ReportLineOf(const Unit& unit, GameState& game) {
  const std::string key = model::UnitText(unit);
  constexpr std::size_t lead = 2;
  for (int i = game.ReportLines.Count(); i >= 1; --i) {
    if (game.ReportLines[i].compare(std::min(lead, game.ReportLines[i].size()), key.size(), key) ==
        0) {
      return i;
    }
  }
  game.ReportLines.Append(key + " ! ");
  return game.ReportLines.Count();
}

void ReportRetreats(GameState& game, Resolution& resolution) {
  for (int k = 1; k <= resolution.Orders.Count(); ++k) {
    const OrderLine& order = resolution.Orders[k];
    if (!order.Active) continue;
    const int number = ReportLineOf(game.Units[order.UnitIndex], game);
    resolution.Entries.push_back({number, k});
    std::string& line = game.ReportLines[number];
    if (!IsRetreat(order)) {
      line += " disband";
    } else {
      line.append(" retreat ").append(order.Target);
      if (order.Failed) line += " failed disband";
    }
  }
}

void ApplyRetreats(GameState& game, const OrderTable& table) {
  for (const OrderLine& order : table) {
    if (!order.Active || !IsRetreat(order) || order.Failed) continue;
    game.Units[order.UnitIndex].Location = order.Target;
    game.Units[order.UnitIndex].Status.clear();
  }
  for (int u = game.Units.Count(); u >= 1; --u) {
    if (game.Units[u].Status == model::Dislodged) game.Units.Remove(u);
  }
}

}  // namespace

bool CheckRetreats(GameState& game, Resolution& resolution, Messages& messages) {
  OrderTable& table = resolution.Orders;
  ParseRetreatOrders(table);
  if (!CheckRetreatSyntax(*game.Map, table, messages)) return false;
  if (!MatchRetreatsToUnits(game, table, messages)) return false;
  CheckRetreatMoves(game, table);
  return true;
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
    const Unit& unit = game.Units[order.UnitIndex];
    if (model::SamePlace(order.Target, unit.DislodgedFrom)) {
      Lose(order, reason, Ruling::BackToAttacker, 0);
    } else if (const int occupant = model::FindUnitAt(game, order.Target); occupant != 0) {
      Lose(order, reason, Ruling::PlaceTaken, occupant);
    } else if (const int other = CollidingRetreat(table, i); other != 0) {
      Lose(order, reason, Ruling::RetreatsCollide, other);
    }
  }
}

Resolution ResolveRetreats(GameState& game, Messages& messages) {
  Resolution resolution =
      StartResolution(ResolvedStage::Retreats, game, std::move(game.RetreatsList));
  if (!CheckRetreats(game, resolution, messages)) return resolution;
  ResolveRetreatStandoffs(game, resolution);
  ReportRetreats(game, resolution);
  ApplyRetreats(game, resolution.Orders);
  game.RetreatsList.clear();
  EndMovement(game);
  resolution.Completed = true;
  return resolution;
}

}  // namespace orb::adjudication
