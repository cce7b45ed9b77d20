#include "model/new_game.h"

#include "model/files.h"
#include "model/record_file.h"
#include "model/unit_fields.h"

#include <string>
#include <utility>

namespace orb::model {
namespace {

/// start.dat: a record of season and year, then one of power, unit type and location per unit.
class StartFile {
 public:
  explicit StartFile(const std::filesystem::path& dataDirectory)
      : path_(dataDirectory / "start.dat"),
        bytes_(ReadFile(path_)),
        reader_(bytes_, path_, LoneQuotes::Refused) {}
  RecordReader& Reader() { return reader_; }

 private:
  std::filesystem::path path_;
  std::string bytes_;
  RecordReader reader_;
};

void ReadSeason(GameState& game, RecordReader& reader) {
  game.Title = DefaultTitle;
  game.Season = reader.Text("a season");
  game.Year = reader.Number("a year");
  game.Stage = Stage::Moves;
}

void ReadUnits(GameState& game, RecordReader& reader) {
  while (!reader.AtEnd()) {
    if (game.Units.Count() == UnitBound) {
      reader.Fail("at most " + std::to_string(UnitBound) + " units", "more");
    }
    Unit& unit = game.Units.Append();
    unit = {};  // an appended row still holds what an earlier unit left there
    unit.Power = ReadPower(reader);
    unit.UnitType = ReadUnitType(reader);
    unit.Location = reader.Text("a unit's location");
    FixNames(*game.Map, unit.Location);
    if (FindProvince(*game.Map, unit.Location) == 0) {
      reader.Refuse("a unit's location (on the map)", unit.Location);
    }
  }
}

/// What belonged to the game that was open before.
void ClearTexts(GameState& game) {
  game.TextLines.SetCount(0);
  game.OrdersList.clear();
  game.RetreatsList.clear();
  game.AdjustmentsList.clear();
  game.ReportLines.SetCount(0);
  game.FileName.clear();
  for (Country& country : game.Countries)
    country.PlayerName.clear();
}

}  // namespace

// Both commands build a second situation and move it over the first one only when the file was read
// to its end.

void NewGame(GameState& game, const std::filesystem::path& dataDirectory) {
  GameState next = game;
  StartFile start(dataDirectory);
  ReadSeason(next, start.Reader());
  next.Units.SetCount(0);
  ReadUnits(next, start.Reader());
  ClearTexts(next);
  for (ProvinceState& province : next.Provinces)
    province = {{}, {}, true};
  SetCentreOwnersFromUnits(next);
  game = std::move(next);
}

void BlankGame(GameState& game, const std::filesystem::path& dataDirectory) {
  GameState next = game;
  StartFile start(dataDirectory);
  ReadSeason(next, start.Reader());
  next.Units.SetCount(0);
  ClearTexts(next);
  for (int i = 1; i <= next.Provinces.Count(); ++i) {
    next.Provinces[i] = {next.Map->Provinces[i].HomeCountry, {}, true};
  }
  game = std::move(next);
}

}  // namespace orb::model
