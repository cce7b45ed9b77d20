#include "session/changes.h"

#include <algorithm>
#include <tuple>

namespace orb::session {
namespace {

using model::GameState;

bool SameRows(const auto& a, const auto& b) {
  return std::ranges::equal(a, b);
}

bool SameSeason(const GameState& a, const GameState& b) {
  return std::tie(a.Title, a.Season, a.Year, a.Stage, a.OtherStage) ==
             std::tie(b.Title, b.Season, b.Year, b.Stage, b.OtherStage) &&
         SameRows(a.TextLines, b.TextLines);
}

bool SamePosition(const GameState& a, const GameState& b) {
  return a.Map == b.Map && SameRows(a.Units, b.Units) && SameRows(a.Provinces, b.Provinces);
}

bool SameReport(const Situation& a, const Situation& b) {
  return SameRows(a.Game.ReportLines, b.Game.ReportLines) &&
         std::tie(a.Notes, a.Outcomes, a.Differences, a.ByUsualRules) ==
             std::tie(b.Notes, b.Outcomes, b.Differences, b.ByUsualRules);
}

}  // namespace

bool SameLists(const GameState& a, const GameState& b) {
  return std::tie(a.OrdersList, a.RetreatsList, a.AdjustmentsList) ==
         std::tie(b.OrdersList, b.RetreatsList, b.AdjustmentsList);
}

bool SameWork(const GameState& a, const GameState& b) {
  const auto player = [](const model::Country& country) { return country.PlayerName; };
  return SameSeason(a, b) && SamePosition(a, b) && SameLists(a, b) &&
         std::ranges::equal(a.Countries, b.Countries, {}, player, player);
}

Changes ChangesBetween(const Situation& before, const Situation& after) {
  const GameState& a = before.Game;
  const GameState& b = after.Game;
  Changes changes = Changes::None;
  if (!SameSeason(a, b)) changes |= Changes::Season;
  if (!SamePosition(a, b)) changes |= Changes::Position;
  if (!SameRows(a.Countries, b.Countries)) changes |= Changes::Powers;
  if (!SameLists(a, b) || before.Stopped != after.Stopped) changes |= Changes::Orders;
  if (!SameReport(before, after)) changes |= Changes::Report;
  if (a.FileName != b.FileName || before.ReadOnly != after.ReadOnly) changes |= Changes::File;
  if (before.Editing != after.Editing) changes |= Changes::Editing;
  if (before.Rules != after.Rules) changes |= Changes::Rules;
  if (before.GameNumber != after.GameNumber) changes |= Changes::Game;
  return changes;
}

}  // namespace orb::session
