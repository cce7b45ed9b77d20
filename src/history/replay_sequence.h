#pragma once

#include "history/replay.h"

#include <string>
#include <vector>

namespace orb::history {

/// A part of a longer replay.
struct ReplayPart {
  std::string Name;  ///< the season, "Spring 1901", or the seasons that it shows
  history::Replay Replay;
};

/// What happened in the season of one situation; see SeasonReplay.
ReplayPart SeasonPart(const model::GameState& game,
                      const std::vector<orders::OrderOutcome>& outcomes = {});

/// What happened from the first situation's season to the last one's. Parts in which nothing
/// happens are left out where two situations show the same season, or nothing came before the first
/// one. Throws as SeasonReplay does.
std::vector<ReplayPart> ReplaySequence(const std::vector<model::GameState>& games);

}  // namespace orb::history
