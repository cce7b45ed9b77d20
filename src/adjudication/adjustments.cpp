#include "adjudication/adjustments.h"

#include "adjudication/stages.h"
#include "model/counts.h"
#include "model/lookups.h"
#include "model/place.h"
#include "orders/later_stages.h"

#include <algorithm>
#include <utility>

namespace orb::adjudication {
namespace {

using model::GameState;
using model::Messages;
using orders::OrderLine;
using orders::OrderTable;

bool IsBuild(const OrderLine& order) {
  return order.Kind == "BUILD";
}

void ParseAdjustmentOrders(OrderTable& table) {
  std::string work;
  for (OrderLine& order : table) {
    orders::ParseAdjustment(order, work);
  }
}

bool CheckAdjustmentSyntax(const model::Map& map, OrderTable& table, Messages& messages) {
  for (OrderLine& order : table) {
    if (orders::FindAdjustmentFault(map, order) == orders::SyntaxFault::None) continue;
    orders::Reject(order, "syntax error");
    if (!messages.Warn(model::WarningText(order.Text, "syntax error."))) return false;
  }
  return true;
}

/// The result word of a failed check and the words that the user sees, which sometimes differ.
struct Fault {
  std::string_view Result;
  std::string_view Message;
};

constexpr Fault NoFault{};

Fault DisbandFault(const GameState& game, const OrderLine& order) {
  const int u = model::FindUnitAt(game, order.Location);
  if (u != 0 && game.Units[u].UnitType == order.UnitType && game.Units[u].Power == order.Power &&
      game.Units[u].Location == order.Location) {
    return NoFault;
  }
  return {"no such unit", "no such unit."};
}

/// Row of the province that a build's location belongs to; 0 when it is unknown.
int CentreOf(const model::Map& map, const std::string& location) {
  const int province = model::FindProvince(map, location);
  if (province == 0 || location.size() < 4) return province;
  return model::FindProvince(map, std::string_view(location).substr(0, 3));
}

Fault BuildFault(const GameState& game, const OrderLine& order) {
  const model::Map& map = *game.Map;
  const int centre = CentreOf(map, order.Location);
  if (centre == 0 || map.Provinces[centre].HomeCountry != order.Power ||
      map.Provinces[centre].IsSupplyCentre == 0) {
    return {"not a home centre", "not home centre."};
  }
  if (game.Provinces[centre].Owner != order.Power) {
    return {"centre not owned", "centre not owned."};
  }
  if (model::FindUnitAt(game, order.Location) != 0) {
    return {"centre not empty1", "centre not empty1."};
  }
  if (!model::CanStandIn(map, order.UnitType, order.Location)) {
    return {"impossible unit", "impossible unit."};
  }
  return NoFault;
}

bool CheckEachOrder(const GameState& game, OrderTable& table, Messages& messages) {
  for (OrderLine& order : table) {
    const Fault fault = IsBuild(order) ? BuildFault(game, order) : DisbandFault(game, order);
    if (fault.Result.empty()) continue;
    orders::Reject(order, fault.Result);
    if (!messages.Warn(model::WarningText(order.Text, fault.Message))) return false;
  }
  return true;
}

/// Whether order i is active is asked once, before its comparisons: of three orders for one place
/// all three clash.
bool CheckClashes(Resolution& resolution, Messages& messages) {
  OrderTable& table = resolution.Orders;
  for (int i = 1; i < table.Count(); ++i) {
    if (!table[i].Active) continue;
    for (int j = i + 1; j <= table.Count(); ++j) {
      if (!table[j].Active || !model::SamePlace(table[i].Location, table[j].Location)) continue;
      orders::Reject(table[i], "clash");
      orders::Reject(table[j], "clash");
      resolution.Reasons[i].Blocker = static_cast<std::int16_t>(j);
      resolution.Reasons[j].Blocker = static_cast<std::int16_t>(i);
      const std::string clash = table[i].Text + " clashes with " + table[j].Text;
      if (!messages.Warn(model::WarningText(clash))) return false;
    }
  }
  return true;
}

bool CheckAdjustmentOrders(const GameState& game, Resolution& resolution, Messages& messages) {
  return CheckEachOrder(game, resolution.Orders, messages) && CheckClashes(resolution, messages);
}

bool CheckAdjustmentCounts(const GameState& game, const OrderTable& table, Messages& messages) {
  for (const model::Country& country : game.Countries) {
    const model::PowerCount count = model::CountPower(game, country.Abbreviation);
    const int units = count.Units + ChangeOf(table, country.Abbreviation);
    if (count.Centres < units) {
      messages.Show("Error: " + country.Abbreviation + " too many units.",
                    model::Icon::Exclamation);
      return false;
    }
    if (count.Centres > units &&
        !messages.Warn(model::WarningText(country.Abbreviation + " not enough units."))) {
      return false;
    }
  }
  return true;
}

void ReportAdjustments(GameState& game, Resolution& resolution) {
  game.ReportLines.Append("ADJUSTMENTS");
  resolution.Entries.push_back({game.ReportLines.Count(), 0});
  for (int k = 1; k <= resolution.Orders.Count(); ++k) {
    const OrderLine& order = resolution.Orders[k];
    game.ReportLines.Append(order.Active ? order.Text + "  "
                                         : "[ " + order.Text + " ]  " + order.Result);
    resolution.Entries.push_back({game.ReportLines.Count(), k});
  }
}

void ApplyAdjustments(GameState& game, const OrderTable& table, Messages& messages) {
  for (const OrderLine& order : table) {
    if (!order.Active) continue;
    if (!IsBuild(order)) {
      game.Units.Remove(model::FindUnitAt(game, order.Location));
    } else if (game.Units.Count() == model::UnitBound) {
      messages.Show("Too many units", model::Icon::Stop);
      return;
    } else {
      game.Units.Append({order.Power, order.UnitType, order.Location, {}, {}, {}, 0});
    }
  }
}

}  // namespace

int ChangeOf(const OrderTable& table, std::string_view power) {
  int change = 0;
  for (const OrderLine& order : table) {
    if (order.Active && order.Power == power) change += IsBuild(order) ? 1 : -1;
  }
  return change;
}

bool CheckAdjustments(const GameState& game, Resolution& resolution, Messages& messages) {
  ParseAdjustmentOrders(resolution.Orders);
  resolution.Reasons.SetCount(resolution.Orders.Count());
  return CheckAdjustmentSyntax(*game.Map, resolution.Orders, messages) &&
         CheckAdjustmentOrders(game, resolution, messages) &&
         CheckAdjustmentCounts(game, resolution.Orders, messages);
}

Resolution ResolveAdjustments(GameState& game, Messages& messages) {
  Resolution resolution =
      StartResolution(ResolvedStage::Adjustments, game, std::move(game.AdjustmentsList));
  if (!CheckAdjustments(game, resolution, messages)) return resolution;
  ReportAdjustments(game, resolution);
  ApplyAdjustments(game, resolution.Orders, messages);
  game.AdjustmentsList.clear();
  game.Stage = "finished";
  resolution.Completed = true;
  return resolution;
}

}  // namespace orb::adjudication
