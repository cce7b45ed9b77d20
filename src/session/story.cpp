#include "session/story.h"

#include "model/errors.h"
#include "session/queries.h"
#include "session/trial.h"

#include <algorithm>
#include <string>
#include <tuple>
#include <vector>

namespace orb::session {
namespace {

/// The units, told apart by what a map shows of them.
auto UnitsOf(const model::GameState& game) {
  std::vector<std::tuple<std::string, std::string, std::string, std::string>> units;
  for (const model::Unit& unit : game.Units)
    units.emplace_back(unit.Power, unit.UnitType, unit.Location, unit.Status);
  std::ranges::sort(units);
  return units;
}

}  // namespace

std::optional<Situation> LedTo(const Situation& before, const model::GameState& later) {
  if (!HasOrderLines(before.Game)) return std::nullopt;
  for (const session::Rules rules : {before.Rules, TheOther(before.Rules)}) {
    Situation start = before;
    start.Rules = rules;
    try {
      Situation tried = TryOut(start);
      if (UnitsOf(tried.Game) == UnitsOf(later)) return tried;
    } catch (const model::FatalError&) {
      continue;  // these orders did not lead anywhere
    }
  }
  return std::nullopt;
}

Situation WithStory(Situation later, const Situation& earlier) {
  if (!later.Notes.empty()) return later;
  // Two files of one stage show nothing of what became of its orders.
  const bool isLater = later.Game.Stage != earlier.Game.Stage;
  const auto led = isLater ? LedTo(earlier, later.Game) : std::nullopt;
  const Situation& story = led ? *led : earlier;
  if (story.Notes.empty()) return later;
  later.Game.ReportLines = story.Game.ReportLines;
  later.Notes = story.Notes;
  later.Outcomes = story.Outcomes;
  later.ByUsualRules = story.ByUsualRules;
  return later;
}

}  // namespace orb::session
