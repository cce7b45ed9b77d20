#include "model/game_file.h"

#include "model/errors.h"
#include "model/files.h"
#include "model/new_game.h"
#include "model/record_file.h"
#include "text/strings.h"

#include <algorithm>
#include <charconv>
#include <utility>

namespace orb::model {
namespace {

constexpr std::string_view OldestHeader = "ORB v0.1";

/// Names the form of the records, which a new version of the program need not change.
constexpr std::string_view WrittenHeader = "ORB v5.5";
constexpr std::size_t VersionPosition = 5;

/// What the records of a game file hold, which depends on its version.
struct Layout {
  bool HasTitle = true;
  bool HasDislodgedFrom = true;
  bool HasPreviousLocation = true;
  bool HasUncontested = true;
  bool HasPreviousOwner = true;
  bool ForgetsPreviousOwner = false;  ///< PreviousOwner becomes "unknown"
};

/// The number that a text begins with, blanks aside, or 0.
double LeadingNumber(std::string_view text) {
  text = text::Trim(text);
  double number = 0;
  if (text.find_first_of("0123456789.") != 0) return number;
  std::from_chars(text.data(), text.data() + text.size(), number, std::chars_format::fixed);
  return number;
}

Layout LayoutOf(std::string_view header) {
  const double version = LeadingNumber(header.substr(std::min(VersionPosition, header.size())));
  const bool oldest = header == OldestHeader;
  Layout layout;
  layout.HasTitle = version > 0.6;
  layout.HasDislodgedFrom = version > 0.5;
  layout.HasPreviousLocation = version > 2.1;
  layout.HasUncontested = !oldest;
  layout.HasPreviousOwner = version > 2.5;
  layout.ForgetsPreviousOwner = !layout.HasPreviousOwner && !oldest;
  return layout;
}

void ReadSituation(RecordReader& reader, const Layout& layout, GameState& game) {
  game.Title = layout.HasTitle ? reader.Text("a title") : DefaultTitle;
  game.Season = reader.Text("a season");
  game.Year = reader.Number("a year");
  game.Stage = reader.Text("a stage");
}

void ReadFixed(RecordReader& reader, const Map& map, std::string_view expected,
               std::string& field) {
  field = reader.Text(expected);
  FixNames(map, field);
}

void ReadUnits(RecordReader& reader, const Layout& layout, GameState& game) {
  game.Units.SetCount(reader.NumberUpTo(UnitBound, "the number of units"));
  for (Unit& unit : game.Units) {
    unit.Power = reader.Text("a unit's power");
    unit.UnitType = reader.Text("a unit's type");
    ReadFixed(reader, *game.Map, "a unit's location", unit.Location);
    unit.Status = reader.Text("a unit's status");
    if (layout.HasDislodgedFrom) {
      ReadFixed(reader, *game.Map, "where a unit was dislodged from", unit.DislodgedFrom);
    }
    unit.PreviousLocation = Unknown;
    if (layout.HasPreviousLocation) {
      ReadFixed(reader, *game.Map, "a unit's previous location", unit.PreviousLocation);
    }
  }
}

std::optional<std::string> ReadProvinces(RecordReader& reader, const Layout& layout,
                                         GameState& game) {
  const int count = reader.Number("the number of locations");
  std::string name;
  for (int i = 1; i <= count; ++i) {
    ReadFixed(reader, *game.Map, "a location", name);
    const int row = FindProvince(*game.Map, name);
    if (row == 0) return name;
    ProvinceState& province = game.Provinces[row];
    province.Owner = reader.Text("a location's owner");
    province.Uncontested = !layout.HasUncontested || reader.Flag("a location's uncontested flag");
    if (layout.HasPreviousOwner) province.PreviousOwner = reader.Text("a previous owner");
    if (layout.ForgetsPreviousOwner) province.PreviousOwner = Unknown;
  }
  return std::nullopt;
}

void ReadOrders(RecordReader& reader, GameState& game) {
  const int count = reader.Number("the number of orders");
  game.OrdersList.clear();
  for (int i = 1; i <= count; ++i) {
    ReadFixed(reader, *game.Map, "an order", game.OrdersList.emplace_back());
  }
}

void ReadTexts(RecordReader& reader, GameState& game) {
  game.TextLines.SetCount(0);
  if (reader.AtEnd()) return;
  game.TextLines.SetCount(reader.NumberUpTo(TextLineBound, "the number of text lines"));
  for (std::string& line : game.TextLines)
    ReadFixed(reader, *game.Map, "a text line", line);
}

void ReadPlayers(RecordReader& reader, GameState& game) {
  if (reader.AtEnd()) {
    for (Country& country : game.Countries)
      country.PlayerName.clear();
    return;
  }
  const int count = reader.Number("the number of powers");
  for (int i = 1; i <= count; ++i) {
    const int country = FindCountry(reader.Text("a power"));
    const std::string_view name = reader.Text("a player's name");
    if (country != 0) game.Countries[country].PlayerName = name;
  }
}

/// The file format does not keep a unit from standing nowhere, but nothing could be done with it.
void CheckUnits(const GameState& game, const std::string& fileName) {
  for (const Unit& unit : game.Units) {
    if (FindProvince(*game.Map, unit.Location) == 0) {
      throw FileError(fileName + ": expected every unit in a location of the map, found " +
                      unit.Power + " " + unit.UnitType + "(" + unit.Location + ").");
    }
  }
}

}  // namespace

std::optional<std::string> ParseGameFile(std::string_view bytes, const std::string& fileName,
                                         GameState& game) {
  RecordReader reader(bytes, fileName);
  std::string_view header = reader.Text("a header");
  if (!header.starts_with("ORB")) {
    header = OldestHeader;
    reader = RecordReader(bytes, fileName);
  }
  const Layout layout = LayoutOf(header);
  GameState next = game;
  ReadSituation(reader, layout, next);
  ReadUnits(reader, layout, next);
  if (auto unknown = ReadProvinces(reader, layout, next)) return unknown;
  ReadOrders(reader, next);
  ReadTexts(reader, next);
  ReadPlayers(reader, next);
  CheckUnits(next, fileName);
  next.RetreatsList.clear();
  next.AdjustmentsList.clear();
  next.ReportLines.SetCount(0);
  game = std::move(next);
  return std::nullopt;
}

std::string FormatGameFile(const GameState& game) {
  RecordWriter writer;
  writer.Text(WrittenHeader).EndRecord();
  writer.Text(game.Title).Text(game.Season).Number(game.Year).Text(game.Stage).EndRecord();
  writer.Number(game.Units.Count()).EndRecord();
  for (const Unit& unit : game.Units) {
    writer.Text(unit.Power).Text(unit.UnitType).Text(unit.Location);
    writer.Text(unit.Status).Text(unit.DislodgedFrom).Text(unit.PreviousLocation).EndRecord();
  }
  const int provinceCount = game.Map->Provinces.Count();
  writer.Number(provinceCount).EndRecord();
  for (int i = 1; i <= provinceCount; ++i) {
    const ProvinceState& province = game.Provinces[i];
    writer.Text(game.Map->Provinces[i].Name).Text(province.Owner).Flag(province.Uncontested);
    writer.Text(province.PreviousOwner).EndRecord();
  }
  writer.Number(static_cast<int>(game.OrdersList.size())).EndRecord();
  for (const std::string& line : game.OrdersList)
    writer.Text(line).EndRecord();
  writer.Number(game.TextLines.Count()).EndRecord();
  for (const std::string& line : game.TextLines)
    writer.Text(line).EndRecord();
  writer.Number(game.Countries.Count()).EndRecord();
  for (const Country& country : game.Countries) {
    writer.Text(country.Abbreviation).Text(country.PlayerName).EndRecord();
  }
  return writer.Bytes();
}

void WriteGameFile(const GameState& game) {
  ReplaceFile(game.FileName, FormatGameFile(game));
}

bool ReadGameFile(GameState& game, const std::filesystem::path& file,
                  const std::filesystem::path& dataDirectory, Messages& messages) {
  if (const auto unknown = ParseGameFile(ReadFile(file), file.string(), game)) {
    messages.Show("Unknown province: " + *unknown, Icon::Exclamation);
    NewGame(game, dataDirectory);
    return false;
  }
  game.FileName = file.string();
  return true;
}

}  // namespace orb::model
