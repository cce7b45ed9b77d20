#pragma once

#include "adjudication/resolution.h"
#include "model/game_state.h"

#include <string>
#include <vector>

namespace orb::adjudication {

/// For each line of `after`'s report the locations of the units that had a part in its outcome, the
/// line's own unit first: rivals and the unit attacked, supports that counted or were lost, who cut
/// and who dislodged, fleets of a convoy, whoever stood in the way. A unit is where it stands in
/// `after`; one that is gone, where it stood last. Empty for a line that this completed resolution
/// did not write to.
std::vector<std::vector<std::string>> ReportParticipants(const model::GameState& after,
                                                         const Resolution& resolution);

}  // namespace orb::adjudication
