#include "support/boards.h"

#include "model/game_file.h"
#include "model/map_files.h"
#include "support/directories.h"
#include "text/strings.h"

#include <algorithm>
#include <sstream>

namespace orb::tests {

using model::GameState;
using model::Unit;

std::shared_ptr<const model::Map> RealMap() {
  static const std::shared_ptr<const model::Map> map = model::LoadMap(DataDirectory());
  return map;
}

GameState EmptyBoard(std::string_view season, std::string_view stage) {
  GameState game = model::EmptyGame(RealMap());
  game.Title = model::DefaultTitle;
  game.Season = season;
  game.Year = 1901;
  game.Stage = model::StageOf(stage);
  game.OtherStage = game.Stage == model::Stage::Other ? stage : std::string_view{};
  for (model::ProvinceState& province : game.Provinces)
    province.Uncontested = true;
  return game;
}

bool ReadUnit(std::string_view& line, Unit& unit) {
  const auto blank = line.find(' ');
  const auto open = line.find('(');
  const auto close = line.find(')');
  if (blank > open || open > close || close == std::string_view::npos) return false;
  Unit read;
  read.Power = line.substr(0, blank);
  read.UnitType = line.substr(blank + 1, open - blank - 1);
  read.Location = line.substr(open + 1, close - open - 1);
  if (model::FindCountry(read.Power) == 0 || (read.UnitType != "A" && read.UnitType != "F") ||
      model::FindProvince(*RealMap(), read.Location) == 0) {
    return false;
  }
  line = text::Trim(line.substr(close + 1));
  if (line.starts_with('<')) {
    read.Status = model::Dislodged;
    read.DislodgedFrom = line.substr(1, line.find(' ') - 1);
    line = text::Trim(line.substr(std::min(line.size(), line.find(' '))));
  }
  unit = read;
  return true;
}

std::string AddDrawnUnit(GameState& game, std::string_view line) {
  std::string_view rest = line;
  Unit unit;
  if (!ReadUnit(rest, unit)) return std::string(line);
  const bool known = std::any_of(game.Units.begin(), game.Units.end(), [&](const Unit& other) {
    return other.Power == unit.Power && other.UnitType == unit.UnitType &&
           other.Location == unit.Location;
  });
  if (!known) game.Units.Append(unit);
  const std::string_view head = line.substr(0, line.find(')') + 1);
  return rest.empty() ? std::string() : std::string(head).append(" ").append(rest);
}

GameState Board(std::string_view season, std::string_view stage,
                const std::vector<std::string>& lines) {
  GameState game = EmptyBoard(season, stage);
  for (const std::string& line : lines) {
    const std::string order = line.starts_with("> ") ? line.substr(2) : AddDrawnUnit(game, line);
    if (!order.empty()) OrdersOf(game).push_back(order);
  }
  return game;
}

std::vector<std::string>& OrdersOf(GameState& game) {
  return game.Stage == model::Stage::Retreats      ? game.RetreatsList
         : game.Stage == model::Stage::Adjustments ? game.AdjustmentsList
                                                   : game.OrdersList;
}

model::ProvinceState& Live(GameState& game, std::string_view place) {
  return game.Provinces[model::FindProvince(*game.Map, place)];
}

void Own(GameState& game, std::string_view powerAndPlaces) {
  const std::vector<std::string> words = Words(powerAndPlaces);
  for (std::size_t i = 1; i < words.size(); ++i)
    Live(game, words[i]).Owner = words[0];
}

std::string DrawUnits(const GameState& game) {
  std::string text;
  for (const Unit& unit : game.Units) {
    text += unit.Power + " " + unit.UnitType + "(" + unit.Location + ")";
    if (!unit.Status.empty()) text += " <" + unit.DislodgedFrom;
    text += '\n';
  }
  return text;
}

std::string Describe(const GameState& game) {
  std::string text = model::FormatGameFile(game) + game.FileName;
  for (const auto* list : {&game.RetreatsList, &game.AdjustmentsList}) {
    text += "\n--";
    for (const std::string& line : *list)
      text += "\n" + line;
  }
  text += "\n--";
  for (const std::string& line : game.ReportLines)
    text += "\n" + line;
  return text;
}

std::string ContestedPlaces(const GameState& game) {
  std::string text;
  for (int p = 1; p <= game.Provinces.Count(); ++p) {
    const std::string& name = game.Map->Provinces[p].Name;
    const bool contested = !game.Provinces[p].Uncontested;
    const int place = model::FindProvince(*game.Map, name.substr(0, 3));
    const bool asPlace = place != p && game.Provinces[place].Uncontested == !contested;
    if (contested && !asPlace) text += (text.empty() ? "" : " ") + name;
    if (!contested && place != p && !asPlace) text += " not " + name;
  }
  return text;
}

std::vector<std::string> Words(std::string_view text) {
  std::istringstream stream{std::string(text)};
  std::vector<std::string> words;
  for (std::string word; stream >> word;)
    words.push_back(word);
  return words;
}

}  // namespace orb::tests
