#pragma once

#include "model/country.h"
#include "model/map.h"
#include "model/stage.h"
#include "model/table.h"

#include <cstdint>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace orb::model {

constexpr int UnitBound = 40;
constexpr int TextLineBound = 100;
constexpr int ReportLineBound = 100;

/// The live state of a location; its row is that of the map's Province.
struct ProvinceState {
  std::string Owner;          ///< abbreviation of the power owning the centre; else unowned
  std::string PreviousOwner;  ///< Owner before the last moves; "unknown" when not recorded
  bool Uncontested = false;   ///< no move with positive strength was aimed at it last

  bool operator==(const ProvinceState&) const = default;
};

/// One army or fleet.
struct Unit {
  std::string Power;
  std::string UnitType;  ///< "A" or "F"
  std::string Location;
  std::string Status;            ///< "dislodged" or empty
  std::string DislodgedFrom;     ///< where the dislodging attack came from
  std::string PreviousLocation;  ///< Location before the last moves; empty or "unknown": none

  bool operator==(const Unit&) const = default;
};

/// One game: everything that a game file holds, the lists of the three stages and the report.
/// A situation is copied by assignment; the map is shared.
struct GameState {
  std::shared_ptr<const model::Map> Map;
  std::string Title;
  std::string Season;
  std::int16_t Year = 0;
  model::Stage Stage = Stage::Moves;
  std::string OtherStage;                         ///< the file's text for Stage::Other
  Table<ProvinceState, ProvinceBound> Provinces;  ///< rows as in the map
  Table<Unit, UnitBound> Units;
  CountryTable Countries = FixedCountries();
  Table<std::string, TextLineBound> TextLines;
  std::vector<std::string> OrdersList;  ///< lines of the moves stage, saved with the game
  std::vector<std::string> RetreatsList;
  std::vector<std::string> AdjustmentsList;
  Table<std::string, ReportLineBound> ReportLines;  ///< of the season resolved last
  std::string FileName;  ///< the current file name; empty when the game has none
};

constexpr std::string_view DefaultTitle = "CONCORDAT";
constexpr std::string_view Unknown = "unknown";
constexpr std::string_view Dislodged = "dislodged";

/// A situation on this map before any game is set up: no units, no owners, no texts.
GameState EmptyGame(std::shared_ptr<const Map> map);

/// The window caption: ProgramName, followed by a blank and the title when the game has its own.
std::string Caption(const GameState& game);

/// "Spring 1901".
std::string SeasonText(const GameState& game);

/// The stage as files and reports have it.
std::string_view StageText(const GameState& game);

/// Every supply centre that holds a unit now belongs to that unit's power. Throws
/// IndexOutOfRange for a unit whose province is not on the map.
void SetCentreOwnersFromUnits(GameState& game);

}  // namespace orb::model
