#include "adjudication/stage_steps.h"

#include "model/errors.h"
#include "model/lookups.h"
#include "orders/parser.h"
#include "text/strings.h"

#include <algorithm>
#include <utility>

namespace orb::adjudication {
namespace {

using model::GameState;
using orders::IsMove;
using orders::OrderKind;
using orders::OrderLine;
using orders::OrderTable;

std::string ReportLine(const OrderLine& order) {
  const std::string_view result = orders::ResultWord(order.Result);
  std::string line;
  line.reserve(order.Text.size() + result.size() + 6);
  line.append(order.Failed ? "[ " : "  ").append(order.Text).append(order.Failed ? " ]" : "");
  return line.append("  ").append(result);
}

/// The last report line about the unit; a new one if there is none. Looked for by its text, and
/// meant so: several lines may begin alike, and the first that is found is the one to write to.
int ReportLineOf(const model::Unit& unit, GameState& game) {
  const std::string key = model::UnitText(unit);
  // Lines of the moves begin with two blanks or "[ ".
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

/// Removes the unit that the order is for, not another one that stands in its place too.
void RemoveUnit(GameState& game, const OrderLine& order) {
  for (int u = game.Units.Count(); u >= 1; --u) {
    const model::Unit& unit = game.Units[u];
    if (unit.Power == model::PowerName(order.Power) &&
        unit.UnitType == model::UnitTypeName(order.UnitType) &&
        unit.Location == model::LocationName(*game.Map, order.Location)) {
      game.Units.Remove(u);
      return;
    }
  }
}

}  // namespace

void ThrowNothingToResolve(const GameState& game) {
  throw model::FatalError("There is nothing to resolve in the stage \"" +
                          std::string(StageText(game)) + "\".");
}

Resolution StartResolution(model::Stage stage, const model::GameState& game,
                           std::vector<std::string> lines) {
  Resolution resolution;
  resolution.Stage = stage;
  orders::SetOrderTexts(std::move(lines), resolution.Orders);
  resolution.Map = game.Map;
  resolution.UnitsBefore = game.Units;
  resolution.Pieces = orders::PiecesOf(game);
  return resolution;
}

void SavePreviousPositions(GameState& game) {
  for (model::Unit& unit : game.Units)
    text::Assign(unit.PreviousLocation, unit.Location);
  for (model::ProvinceState& province : game.Provinces)
    text::Assign(province.PreviousOwner, province.Owner);
}

void CarryOutMoves(GameState& game, Resolution& resolution) {
  for (int u = 1; u <= game.Units.Count(); ++u) {
    if (game.Units[u].Status == model::Dislodged) {
      resolution.Orders[resolution.OrdersOfUnits[u]].Result = orders::OrderResult::Dislodged;
    }
  }
  // Two orders for one unit may both have succeeded: the later one then says where it ends.
  for (const OrderLine& order : resolution.Orders) {
    if (order.Active && IsMove(order) && !order.Failed) {
      game.Units[order.UnitIndex].Location = model::LocationName(*game.Map, order.Target);
    }
  }
}

void WriteMoveReport(GameState& game, Resolution& resolution) {
  game.ReportLines.SetCount(0);
  resolution.Entries.reserve(static_cast<std::size_t>(resolution.Orders.Count()));
  for (int k = 1; k <= resolution.Orders.Count(); ++k) {
    game.ReportLines.Append(ReportLine(resolution.Orders[k]));
    resolution.Entries.push_back({k, k});
  }
  game.OrdersList.clear();
}

void AdvanceAfterMoves(GameState& game) {
  // While units have to retreat nothing else advances: centres change hands after the retreats.
  const bool retreats =
      std::any_of(game.Units.begin(), game.Units.end(),
                  [](const model::Unit& unit) { return unit.Status == model::Dislodged; });
  if (retreats) {
    game.Stage = model::Stage::Retreats;
  } else {
    EndMovement(game);
  }
}

void EndMovement(model::GameState& game) {
  game.Stage = model::Stage::Adjustments;
  if (game.Season == "Spring") {
    game.Stage = model::Stage::Finished;
  } else {
    model::SetCentreOwnersFromUnits(game);
  }
}

void WriteRetreatReport(GameState& game, Resolution& resolution) {
  for (int k = 1; k <= resolution.Orders.Count(); ++k) {
    const OrderLine& order = resolution.Orders[k];
    if (!order.Active) continue;
    const int number = ReportLineOf(game.Units[order.UnitIndex], game);
    resolution.Entries.push_back({number, k});
    std::string& line = game.ReportLines[number];
    if (order.Kind != OrderKind::Retreat) {
      line += " disband";
    } else {
      line.append(" retreat ").append(model::LocationName(*game.Map, order.Target));
      if (order.Failed) line += " failed disband";
    }
  }
}

void CarryOutRetreats(GameState& game, const OrderTable& table) {
  for (const OrderLine& order : table) {
    if (!order.Active || order.Kind != OrderKind::Retreat || order.Failed) continue;
    game.Units[order.UnitIndex].Location = model::LocationName(*game.Map, order.Target);
    game.Units[order.UnitIndex].Status.clear();
  }
  // Whoever was disbanded, lost its retreat or had no valid order is still marked, and goes.
  for (int u = game.Units.Count(); u >= 1; --u) {
    if (game.Units[u].Status == model::Dislodged) game.Units.Remove(u);
  }
}

void WriteAdjustmentReport(GameState& game, Resolution& resolution) {
  game.ReportLines.Append("ADJUSTMENTS");
  resolution.Entries.push_back({game.ReportLines.Count(), 0});
  for (int k = 1; k <= resolution.Orders.Count(); ++k) {
    const OrderLine& order = resolution.Orders[k];
    std::string line = order.Failed ? "[ " + order.Text + " ]  " : order.Text + "  ";
    line += orders::ResultWord(order.Result);
    game.ReportLines.Append(std::move(line));
    resolution.Entries.push_back({game.ReportLines.Count(), k});
  }
}

bool CarryOutAdjustments(GameState& game, const OrderTable& table) {
  for (const OrderLine& order : table) {
    if (!order.Active) continue;
    if (order.Kind != OrderKind::Build) {
      RemoveUnit(game, order);
    } else if (game.Units.Count() == model::UnitBound) {
      return false;
    } else {
      game.Units.Append({std::string(model::PowerName(order.Power)),
                         std::string(model::UnitTypeName(order.UnitType)),
                         model::LocationName(*game.Map, order.Location),
                         {},
                         {},
                         {}});
    }
  }
  return true;
}

}  // namespace orb::adjudication
