#pragma once

#include "history/journeys.h"
#include "model/game_state.h"
#include "orders/order_outcome.h"

#include <vector>

namespace orb::history {

/// A season, or what lies between two situations, as it is shown: the map that it begins with, what
/// the units do on it, and what it leads to.
struct Replay {
  model::GameState Start;
  std::vector<Journey> Journeys;  ///< those of Start's units in their order, then new ones
  model::GameState End;
};

/// The season of a situation, from the positions before its moves. With the outcomes of the
/// season's orders also failed moves, convoys and units that are gone are shown. A unit without a
/// recorded position appears; before the moves nothing happens. Throws IndexOutOfRange for a unit
/// whose location or power is unknown.
Replay SeasonReplay(const model::GameState& game,
                    const std::vector<orders::OrderOutcome>& outcomes = {});

/// What happened between two situations on one map. Throws as SeasonReplay does.
Replay ReplayBetween(const model::GameState& earlier, const model::GameState& later);

}  // namespace orb::history
