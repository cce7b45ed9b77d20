#pragma once

#include "model/game_state.h"
#include "model/messages.h"

#include <string>
#include <string_view>
#include <tuple>

namespace orb::model {

/// The season as file names have it: its first letter, small, and two digits of the year: "s01".
std::string SeasonCode(const GameState& game);

/// By what situations, or whatever else has a year, a season and a stage, come one after the other.
/// What follows Spring is the year's other half, whatever it is called. It refers to the moment.
template <class Moment>
auto PlaceInTime(const Moment& moment) {
  return std::tuple(moment.Year, moment.Season != "Spring", std::string_view(moment.Season),
                    moment.Stage);
}

/// Starts the season that follows: Spring comes after anything but Spring and begins a new year.
/// Orders, free text, report and current file name are dropped. Throws FatalError past year 32767.
void NextSeason(GameState& game);

/// Gives every place its owner before the last moves; nothing changes where one is not recorded.
void RestoreOwners(GameState& game);

/// Puts the season back to its start from the positions and owners that the last moves recorded.
/// False, nothing changed, for a finished Autumn season or when the user declines to lose the
/// units whose start is not recorded. Throws IndexOutOfRange for a unit from an unknown province.
bool UndoSeason(GameState& game, Messages& messages);

}  // namespace orb::model
