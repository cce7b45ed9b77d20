#include "model/game_state.h"

#include "model/errors.h"
#include "model/messages.h"

#include <utility>

namespace orb::model {

GameState EmptyGame(std::shared_ptr<const Map> map) {
  GameState game;
  game.Provinces.SetCount(map->Provinces.Count());
  game.Map = std::move(map);
  for (ProvinceState& province : game.Provinces)
    province.Uncontested = true;  // nothing was ever aimed at it
  return game;
}

std::string Caption(const GameState& game) {
  std::string caption(ProgramName);
  if (game.Title != DefaultTitle) caption.append(" ").append(game.Title);
  return caption;
}

std::string SeasonText(const GameState& game) {
  return game.Season + " " + std::to_string(game.Year);
}

std::string_view StageText(const GameState& game) {
  return game.Stage == Stage::Other ? std::string_view(game.OtherStage) : StageName(game.Stage);
}

void SetCentreOwnersFromUnits(GameState& game) {
  for (const Unit& unit : game.Units) {
    // A fleet on a coast holds the centre of the whole province.
    const int province = ProvinceOf(*game.Map, unit.Location);
    if (province == 0) {
      throw IndexOutOfRange("A unit stands in an unknown province: " + unit.Power + " " +
                            unit.UnitType + "(" + unit.Location + ").");
    }
    if (game.Map->Provinces[province].IsSupplyCentre != 0) {
      game.Provinces[province].Owner = unit.Power;
    }
  }
}

}  // namespace orb::model
