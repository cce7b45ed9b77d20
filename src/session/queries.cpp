#include "session/queries.h"

#include "adjudication/possible_orders.h"
#include "model/counts.h"
#include "model/errors.h"
#include "model/lookups.h"
#include "orders/entered_orders.h"
#include "orders/order_list.h"
#include "session/changes.h"

namespace orb::session {

bool TakesOrders(const model::GameState& game) {
  return HasOrders(game.Stage);
}

bool HasOrderLines(const model::GameState& game) {
  return !orders::StageList(game).empty();
}

bool CanSave(const Situation& situation) {
  return !situation.ReadOnly || situation.Game.FileName.empty();
}

bool IsModified(const Situation& situation) {
  return situation.Saved == nullptr || !SameWork(*situation.Saved, situation.Game);
}

bool HasOrdersNoFileKeeps(const Situation& situation) {
  return situation.Game.Stage != model::Stage::Moves && HasOrderLines(situation.Game);
}

bool HasUnsavedWork(const Situation& situation) {
  return IsModified(situation) || HasOrdersNoFileKeeps(situation);
}

model::FileChange OwnFileChange(const Situation& situation) {
  const auto& mark = situation.OwnFile;
  // A game that has lost its file name, or got another one, does not belong to that file any more.
  if (!mark || mark->Path != situation.Game.FileName) return model::FileChange::None;
  return model::ChangeSince(*mark);
}

bool CanUndoSeason(const Situation& situation) {
  return situation.Game.Stage != model::Stage::Moves;
}

bool IsFinished(const Situation& situation) {
  return situation.Game.Stage == model::Stage::Finished;
}

std::string_view RulesRemark(const Situation& situation) {
  return situation.ByUsualRules ? "Resolved by the usual rules" : "";
}

void ExpectFinished(const Situation& situation) {
  if (IsFinished(situation)) return;
  throw model::FatalError("The season is not finished: the game is in the stage \"" +
                          std::string(StageText(situation.Game)) + "\".");
}

std::vector<Choices> PossibleOrders(const Situation& situation) {
  const model::GameState& game = situation.Game;
  const adjudication::PossibleOrders possible(game);
  std::vector<Choices> all;
  for (int u = 1; u <= game.Units.Count(); ++u) {
    const model::Unit& unit = game.Units[u];
    std::vector<std::string> lines = possible.OfUnit(u);
    if (!lines.empty()) all.push_back({unit.Power, model::UnitText(unit), std::move(lines)});
  }
  for (int power = 1; power <= model::CountryCount; ++power) {
    std::vector<std::string> lines = possible.OfPower(power);
    if (lines.empty()) continue;
    const std::string name(model::PowerName(power));
    const model::PowerCount count = model::CountPower(game, name);
    all.push_back({name, {}, std::move(lines), count.Centres - count.Units});
  }
  return all;
}

void ExpectOrdersToDraw(const Situation& situation) {
  if (IsFinished(situation)) {
    throw model::FatalError("There are no orders to draw in the stage \"finished\".");
  }
}

std::vector<orders::OrderOutcome> EnteredOrders(const Situation& situation) {
  ExpectOrdersToDraw(situation);
  return orders::EnteredOrders(situation.Game);
}

std::vector<orders::OrderOutcome> SeasonOrders(const Situation& situation) {
  std::vector<orders::OrderOutcome> all = situation.Outcomes;
  const std::vector<orders::OrderOutcome> entered = orders::EnteredOrders(situation.Game);
  all.insert(all.end(), entered.begin(), entered.end());
  return all;
}

}  // namespace orb::session
