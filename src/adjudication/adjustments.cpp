#include "adjudication/adjustments.h"

#include "adjudication/stage_steps.h"
#include "model/counts.h"
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

bool IsBuild(const OrderLine& order) {
  return order.Kind == OrderKind::Build;
}

OrderResult DisbandFault(const Resolution& resolution, const GameState& game,
                         const OrderLine& order) {
  const int u = model::FindUnitAt(game, order.Location);
  const bool fits = u != 0 && resolution.Pieces[u] == orders::OrderedPiece(order);
  return fits ? OrderResult::None : OrderResult::NoSuchUnit;
}

/// What the user is told of a fault; once it is not the word that the report has.
std::string FaultMessage(OrderResult fault) {
  if (fault == OrderResult::NotHomeCentre) return "not home centre.";
  return std::string(orders::ResultWord(fault)).append(".");
}

/// Also looks at lines that broke the form: the word that it finds for them is the one reported.
bool CheckEachOrder(const GameState& game, Resolution& resolution, Questions& questions) {
  for (int k = 1; k <= resolution.Orders.Count(); ++k) {
    OrderLine& order = resolution.Orders[k];
    const OrderResult fault =
        IsBuild(order) ? BuildFault(game, order) : DisbandFault(resolution, game, order);
    if (fault == OrderResult::None) continue;
    orders::Reject(order, fault);
    if (!questions.GoOn(k, model::WarningText(order.Text, FaultMessage(fault)))) return false;
  }
  return true;
}

/// Whether order i is active is looked at only once, before its comparisons: three orders for one
/// place all clash.
bool CheckClashes(Resolution& resolution, Questions& questions) {
  OrderTable& table = resolution.Orders;
  for (int i = 1; i < table.Count(); ++i) {
    if (!table[i].Active) continue;
    for (int j = i + 1; j <= table.Count(); ++j) {
      const bool clash = table[j].Active &&
                         model::IsSamePlace(*resolution.Map, table[i].Location, table[j].Location);
      if (!clash) continue;
      orders::Reject(table[i], OrderResult::Clash);
      orders::Reject(table[j], OrderResult::Clash);
      resolution.Reasons[i].Blocker = static_cast<std::int16_t>(j);
      resolution.Reasons[j].Blocker = static_cast<std::int16_t>(i);
      const std::string both = table[i].Text + " clashes with " + table[j].Text;
      if (!questions.GoOn(j, model::WarningText(both))) return false;
    }
  }
  return true;
}

bool CheckAdjustmentOrders(const GameState& game, Resolution& resolution, Questions& questions) {
  return CheckEachOrder(game, resolution, questions) && CheckClashes(resolution, questions);
}

/// Too many units are an error, since the rules leave no choice; too few may be meant, since builds
/// can be waived.
bool CheckAdjustmentCounts(const GameState& game, const OrderTable& table, Messages& messages) {
  for (const model::Country& country : game.Countries) {
    const model::PowerCount count = model::CountPower(game, country.Abbreviation);
    const int units = count.Units + ChangeOf(table, model::FindCountry(country.Abbreviation));
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

}  // namespace

OrderResult BuildFault(const GameState& game, const OrderLine& order) {
  const model::Map& map = *game.Map;
  // A coast has the home and the owner of its province. A unit on any coast is in the way.
  const int centre = model::ProvinceOf(map, order.Location);
  const std::string_view power = model::PowerName(order.Power);
  if (centre == 0 || power.empty() || map.Provinces[centre].HomeCountry != power ||
      !model::IsCentre(map, centre)) {
    return OrderResult::NotHomeCentre;
  }
  if (game.Provinces[centre].Owner != power) return OrderResult::CentreNotOwned;
  if (model::FindUnitAt(game, order.Location) != 0) return OrderResult::CentreNotEmpty;
  return model::CanStandIn(map, order.UnitType, order.Location) ? OrderResult::None
                                                                : OrderResult::ImpossibleUnit;
}

int ChangeOf(const OrderTable& table, int power) {
  int change = 0;
  for (const OrderLine& order : table) {
    if (order.Active && order.Power == power) change += IsBuild(order) ? 1 : -1;
  }
  return change;
}

bool CheckAdjustments(const GameState& game, Resolution& resolution, Messages& messages) {
  OrderTable& table = resolution.Orders;
  Questions questions(messages);
  orders::ParseOrders(*game.Map, model::Stage::Adjustments, table);
  resolution.Reasons.SetCount(table.Count());
  const bool goesOn = orders::CheckOrderSyntax(table, questions) &&
                      CheckAdjustmentOrders(game, resolution, questions) &&
                      CheckAdjustmentCounts(game, table, messages);
  resolution.StoppedAt = questions.StoppedAt();
  return goesOn;
}

Resolution ResolveAdjustments(GameState& game, Messages& messages) {
  Resolution resolution =
      StartResolution(model::Stage::Adjustments, game, std::move(game.AdjustmentsList));
  if (!CheckAdjustments(game, resolution, messages)) return resolution;
  WriteAdjustmentReport(game, resolution);
  if (!CarryOutAdjustments(game, resolution.Orders)) {
    messages.Show("Too many units", model::Icon::Stop);
  }
  game.AdjustmentsList.clear();
  game.Stage = model::Stage::Finished;
  resolution.Completed = true;
  return resolution;
}

}  // namespace orb::adjudication
