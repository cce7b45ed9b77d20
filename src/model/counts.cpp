#include "model/counts.h"

#include <utility>

namespace orb::model {
namespace {

std::vector<std::string> CentresOwnedBy(const GameState& game, std::string_view owner) {
  std::vector<std::string> centres;
  for (int p = 1; p <= game.Map->Provinces.Count(); ++p) {
    if (IsCentre(*game.Map, p) && game.Provinces[p].Owner == owner) {
      centres.push_back(game.Map->Provinces[p].Name);
    }
  }
  return centres;
}

void AddGroup(const GameState& game, std::string_view owner, std::string_view heading,
              std::vector<CentreGroup>& groups) {
  std::vector<std::string> centres = CentresOwnedBy(game, owner);
  if (!centres.empty()) groups.push_back({std::string(heading), std::move(centres)});
}

}  // namespace

bool IsCentre(const Map& map, int row) {
  return map.Provinces[row].IsSupplyCentre != 0;
}

PowerCount CountPower(const GameState& game, std::string_view power) {
  PowerCount count;
  for (int p = 1; p <= game.Map->Provinces.Count(); ++p) {
    if (IsCentre(*game.Map, p) && game.Provinces[p].Owner == power) ++count.Centres;
  }
  for (const Unit& unit : game.Units) {
    if (unit.Power == power) ++count.Units;
  }
  return count;
}

std::vector<CentreGroup> CentreGroups(const GameState& game) {
  std::vector<CentreGroup> groups;
  for (const Country& country : game.Countries)
    AddGroup(game, country.Abbreviation, country.Name, groups);
  AddGroup(game, "", "Neutral", groups);
  return groups;
}

}  // namespace orb::model
