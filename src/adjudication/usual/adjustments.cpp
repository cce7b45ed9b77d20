#include "adjudication/usual/adjustments.h"

#include "adjudication/adjustments.h"
#include "adjudication/stage_steps.h"
#include "adjudication/usual/readings.h"
#include "adjudication/usual/removals.h"
#include "model/counts.h"
#include "model/lookups.h"
#include "orders/binding.h"
#include "orders/parser.h"

#include <array>
#include <utility>

namespace orb::adjudication::usual {
namespace {

using model::GameState;
using orders::OrderKind;
using orders::OrderLine;
using orders::OrderResult;

/// For each power how many units it may still build, or must still remove (below 0).
using Allowances = std::array<int, model::CountryCount + 1>;

Allowances AllowancesOf(const GameState& game) {
  Allowances allowances{};
  for (int power = 1; power <= model::CountryCount; ++power) {
    const model::PowerCount count = model::CountPower(game, model::PowerName(power));
    allowances[static_cast<std::size_t>(power)] = count.Centres - count.Units;
  }
  return allowances;
}

/// An earlier build that stands in the same province; 0: none.
int EarlierBuild(const Resolution& resolution, int k) {
  const orders::OrderTable& table = resolution.Orders;
  for (int i = 1; i < k; ++i) {
    if (table[i].Active && table[i].Kind == OrderKind::Build &&
        model::IsSamePlace(*resolution.Map, table[i].Location, table[k].Location)) {
      return i;
    }
  }
  return 0;
}

void DecideBuild(const GameState& game, Resolution& resolution, int k, int& allowance) {
  OrderLine& order = resolution.Orders[k];
  if (const OrderResult fault = BuildFault(game, order); fault != OrderResult::None) {
    orders::Reject(order, fault);
  } else if (const int earlier = EarlierBuild(resolution, k); earlier != 0) {
    const OrderLine& first = resolution.Orders[earlier];
    const bool same = first.UnitType == order.UnitType && first.Location == order.Location;
    orders::Reject(order, same ? OrderResult::Repeated : OrderResult::Clash);
    resolution.Reasons[k].Blocker = static_cast<std::int16_t>(earlier);
  } else if (allowance <= 0) {
    orders::Reject(order, OrderResult::TooMany);
  } else {
    --allowance;
  }
}

/// An earlier line that removes the unit, or would but for the number; 0: none.
int EarlierRemoval(const Resolution& resolution, int k) {
  for (int i = 1; i < k; ++i) {
    const OrderLine& order = resolution.Orders[i];
    if (order.Kind == OrderKind::Disband && order.UnitIndex == resolution.Orders[k].UnitIndex)
      return i;
  }
  return 0;
}

void DecideRemoval(Resolution& resolution, int k, int& allowance) {
  OrderLine& order = resolution.Orders[k];
  const int unit = UnitMeant(resolution, orders::OrderedPiece(order));
  if (unit == 0) {
    orders::Reject(order, OrderResult::NoSuchUnit);
    return;
  }
  order.UnitIndex = static_cast<std::int16_t>(unit);
  order.Location = resolution.Pieces[unit].Location;
  if (const int earlier = EarlierRemoval(resolution, k); earlier != 0) {
    orders::Reject(order, OrderResult::Repeated);
    resolution.Reasons[k].Blocker = static_cast<std::int16_t>(earlier);
  } else if (allowance >= 0) {
    orders::Reject(order, OrderResult::TooMany);
  } else {
    ++allowance;
  }
}

void DecideOrders(const GameState& game, Resolution& resolution, Allowances& allowances) {
  for (int k = 1; k <= resolution.Orders.Count(); ++k) {
    OrderLine& order = resolution.Orders[k];
    if (order.Fault != orders::SyntaxFault::None) {
      orders::Reject(order, OrderResult::SyntaxError);
      continue;
    }
    int& allowance = allowances[static_cast<std::size_t>(order.Power)];
    if (order.Kind == OrderKind::Build) {
      DecideBuild(game, resolution, k, allowance);
    } else {
      DecideRemoval(resolution, k, allowance);
    }
  }
}

/// Removes what must go and nobody named.
void SupplyRemovals(const GameState& game, Resolution& resolution, int power, int missing) {
  orders::UnitSet units;
  for (int u = 1; u <= resolution.Pieces.Count(); ++u) {
    if (resolution.Pieces[u].Power == power) units.Add(u);
  }
  for (const OrderLine& order : resolution.Orders) {
    if (order.Active && order.Kind == OrderKind::Disband) units.Remove(order.UnitIndex);
  }
  for (; missing > 0; --missing) {
    const int unit = ChooseRemoval(game, resolution.Pieces, units);
    units.Remove(unit);
    OrderLine& order = orders::SupplyOrder(*game.Map, resolution.Pieces[unit], unit,
                                           OrderKind::Disband, {}, resolution.Orders);
    order.Text = std::string(model::PowerName(power)) + " DISBAND " +
                 std::string(model::UnitTypeName(order.UnitType)) + "(" +
                 model::LocationName(*game.Map, order.Location) + ")";
    order.Result = OrderResult::Unordered;
  }
}

}  // namespace

Resolution ResolveAdjustments(GameState& game) {
  Resolution resolution =
      StartResolution(model::Stage::Adjustments, game, std::move(game.AdjustmentsList));
  orders::ParseOrders(*game.Map, model::Stage::Adjustments, resolution.Orders);
  resolution.Reasons.SetCount(resolution.Orders.Count());
  Allowances allowances = AllowancesOf(game);
  DecideOrders(game, resolution, allowances);
  for (int power = 1; power <= model::CountryCount; ++power)
    SupplyRemovals(game, resolution, power, -allowances[static_cast<std::size_t>(power)]);
  resolution.Reasons.SetCount(resolution.Orders.Count());
  MirrorRepeats(resolution);
  WriteAdjustmentReport(game, resolution);
  CarryOutAdjustments(game, resolution.Orders);
  game.AdjustmentsList.clear();
  game.Stage = model::Stage::Finished;
  resolution.Completed = true;
  return resolution;
}

}  // namespace orb::adjudication::usual
