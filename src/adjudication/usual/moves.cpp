#include "adjudication/usual/moves.h"

#include "adjudication/stage_steps.h"
#include "adjudication/usual/readings.h"
#include "adjudication/usual/verdicts.h"
#include "model/lookups.h"

#include <array>
#include <bitset>
#include <utility>

namespace orb::adjudication::usual {
namespace {

using model::GameState;

/// A unit that an army by convoy dislodged may retreat anywhere: its attacker came from no
/// neighbouring place.
void MarkDislodged(GameState& game, const Plans& plans, const Settlement& settlement) {
  for (int u = 1; u <= plans.Count; ++u) {
    const int attack = DislodgerOf(plans, settlement, u);
    if (attack == 0) continue;
    model::Unit& unit = game.Units[u];
    unit.Status = model::Dislodged;
    unit.DislodgedFrom.clear();
    if (!plans.Of(attack).ByConvoy) unit.DislodgedFrom = game.Units[attack].Location;
  }
}

/// Whether two or more moves to the place with equal prevent strength, greater than 0, kept each
/// other out.
bool KeptEachOtherOut(const Plans& plans, const Known& known, int place) {
  std::bitset<model::UnitBound + 2> strengths;
  for (const int move : plans.MovesTo(place)) {
    const int strength = PreventStrength(plans, known, move).Low;
    if (strength == 0) continue;
    if (strengths.test(static_cast<std::size_t>(strength))) return true;
    strengths.set(static_cast<std::size_t>(strength));
  }
  return false;
}

/// A place that such moves left empty is a standoff: it alone, with its coasts, is not uncontested.
void MarkStandoffs(GameState& game, const Plans& plans, const Known& known) {
  const model::Map& map = *game.Map;
  for (int row = 1; row <= game.Provinces.Count(); ++row) {
    const int place = map.Places[row];
    game.Provinces[row].Uncontested =
        !KeptEachOtherOut(plans, known, place) || model::FindUnitAt(game, row) != 0;
  }
}

}  // namespace

Resolution ResolveMoves(GameState& game) {
  Resolution resolution = StartResolution(model::Stage::Moves, game, std::move(game.OrdersList));
  SavePreviousPositions(game);
  ReadAsMeant(resolution);
  FindStandingOrders(resolution);
  const Plans plans = MakePlans(resolution);
  const Settlement settlement = Settle(plans);
  RecordVerdicts(plans, settlement, resolution);
  MarkDislodged(game, plans, settlement);
  CarryOutMoves(game, resolution);
  MirrorRepeats(resolution);
  MarkStandoffs(game, plans, settlement.Known);
  WriteMoveReport(game, resolution);
  AdvanceAfterMoves(game);
  resolution.Completed = true;
  return resolution;
}

}  // namespace orb::adjudication::usual
