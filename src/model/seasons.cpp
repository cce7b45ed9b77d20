#include "model/seasons.h"

#include "model/errors.h"
#include "text/strings.h"

#include <algorithm>
#include <limits>

namespace orb::model {
namespace {

bool HasNoStart(const Unit& unit) {
  return unit.PreviousLocation.empty() || unit.PreviousLocation == Unknown;
}

/// Throws for a unit from nowhere: a game with its units off the map could not be read again.
void CheckStarts(const GameState& game) {
  for (const Unit& unit : game.Units) {
    if (!HasNoStart(unit) && FindProvince(*game.Map, unit.PreviousLocation) == 0) {
      throw IndexOutOfRange("A unit came from an unknown province: " + unit.Power + " " +
                            unit.UnitType + "(" + unit.PreviousLocation + ").");
    }
  }
}

void RestoreUnits(GameState& game) {
  for (int i = game.Units.Count(); i >= 1; --i) {
    if (HasNoStart(game.Units[i])) game.Units.Remove(i);
  }
  for (Unit& unit : game.Units) {
    unit.Location = unit.PreviousLocation;
    unit.Status.clear();
    unit.DislodgedFrom.clear();
    unit.PreviousLocation.clear();
  }
}

}  // namespace

std::string SeasonCode(const GameState& game) {
  const std::string season = text::LowerCase(std::string_view(game.Season).substr(0, 1));
  const std::string year = std::to_string(game.Year);
  return season + year.substr(year.size() - std::min<std::size_t>(2, year.size()));
}

void NextSeason(GameState& game) {
  if (game.Season != "Spring") {
    if (game.Year == std::numeric_limits<std::int16_t>::max()) {
      throw FatalError("The year " + std::to_string(game.Year) + " is the last one possible.");
    }
    game.Season = "Spring";
    ++game.Year;
  } else {
    game.Season = "Autumn";
  }
  game.Stage = Stage::Moves;
  game.OrdersList.clear();
  game.TextLines.SetCount(0);
  game.ReportLines.SetCount(0);
  game.FileName.clear();
}

void RestoreOwners(GameState& game) {
  const bool known =
      std::none_of(game.Provinces.begin(), game.Provinces.end(),
                   [](const ProvinceState& p) { return p.PreviousOwner == Unknown; });
  if (!known) return;
  for (ProvinceState& province : game.Provinces)
    province.Owner = province.PreviousOwner;
}

bool UndoSeason(GameState& game, Messages& messages) {
  if (game.Stage == Stage::Finished && game.Season == "Autumn") {
    messages.Show("Original supply centre ownerships unknown;\rcan't undo.", Icon::None);
    return false;
  }
  CheckStarts(game);
  const auto lost = std::count_if(game.Units.begin(), game.Units.end(), HasNoStart);
  if (lost > 0 && !messages.Warn(std::to_string(lost) +
                                 " units do not have original locations recorded.\rContinue?")) {
    return false;
  }
  RestoreUnits(game);
  RestoreOwners(game);
  game.Stage = Stage::Moves;
  game.RetreatsList.clear();
  game.AdjustmentsList.clear();
  game.ReportLines.SetCount(0);
  return true;
}

}  // namespace orb::model
