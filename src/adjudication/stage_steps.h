#pragma once

#include "adjudication/resolution.h"
#include "model/game_state.h"

#include <string>
#include <vector>

// What the resolutions of several stages have in common.

namespace orb::adjudication {

/// Starts a resolution: takes over the list's lines as orders and the units as they stand.
Resolution StartResolution(model::Stage stage, const model::GameState& game,
                           std::vector<std::string> lines);

/// The stage that follows moves or retreats: "finished" in Spring; otherwise "adjustments", with
/// the centres now owned by the units that stand in them.
void EndMovement(model::GameState& game);

}  // namespace orb::adjudication
