#pragma once

#include "model/game_state.h"

#include <memory>
#include <string>
#include <vector>

namespace orb::adjudication {

/// Every order that the units of a situation could be given, as lines of the stage's list.
///
/// In the moves stage: to hold; to move over land or sea or, an army on a coast, over any chain of
/// fleets that stand at sea; to support a unit where it stands, or any such move into a place that
/// the supporter could move to; to convoy, where the fleet can be part of a chain. In the retreats
/// stage, of dislodged units: to each neighbouring place that is empty, without a standoff and not
/// the attacker's, and to disband. In the adjustments stage: to build each unit that its home
/// centres have room for, and to disband each that it has, whatever the numbers allow.
///
/// The lines of a unit or power come in a stable order: by kind as above, then by the tables of
/// units and places.
class PossibleOrders {
 public:
  /// Looks at the situation once for all units.
  explicit PossibleOrders(const model::GameState& game);

  /// The orders of the unit of that index; none in another stage than moves and retreats, and for a
  /// unit that has nothing to do in the stage.
  std::vector<std::string> OfUnit(int unit) const;

  /// The adjustments of the power in row 1..7; none in another stage.
  std::vector<std::string> OfPower(int power) const;

 private:
  class Look;
  std::shared_ptr<const Look> look_;
};

/// Whether the dislodged unit may retreat to the location in that row: it can move there, the place
/// is empty, no standoff, and not where the attack came from.
bool MayRetreatTo(const model::GameState& game, const model::Unit& unit, int row);

}  // namespace orb::adjudication
