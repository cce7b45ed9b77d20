#include "model/game_file.h"

#include "model/errors.h"
#include "model/record_file.h"
#include "model/unit_fields.h"
#include "text/encoding.h"
#include "text/strings.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cstdint>
#include <forward_list>
#include <limits>
#include <vector>

namespace orb::model {
namespace {

constexpr std::string_view OldestHeader = "ORB v0.1";

/// Names the form of the records, which a new version of the program need not change.
constexpr std::string_view WrittenHeader = "ORB v5.5";
constexpr std::size_t VersionPosition = 5;

/// The largest count that a file can hold of what has no bound of its own.
constexpr int CountBound = std::numeric_limits<std::int16_t>::max();

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

/// Which fields the records have in a file with this header. Files of version 0.1 are known by
/// their whole header: their locations have the fewest fields of all.
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

/// Whether the first field of the file, with or without quotes, is a header.
bool BeginsWithHeader(std::string_view bytes) {
  bytes.remove_prefix(std::min(bytes.find_first_not_of(' '), bytes.size()));
  if (bytes.starts_with('"')) bytes.remove_prefix(1);
  return bytes.starts_with("ORB");
}

/// A unit's record.
struct UnitFields {
  std::string_view Power, UnitType, Location, Status, DislodgedFrom, PreviousLocation;
};

/// A location's record. A file need not have one for every location of the map.
struct ProvinceFields {
  std::string_view Owner, PreviousOwner;
  bool Uncontested = false;
  bool IsFound = false;
};

/// What a file was found to hold, as parts of its bytes. The situation takes it over only when all
/// of it was read, so that a broken file changes nothing and nothing has to be copied for that.
struct Contents {
  std::string_view Title = DefaultTitle, Season, Stage;
  std::int16_t Year = 0;
  Table<UnitFields, UnitBound> Units;
  Table<ProvinceFields, ProvinceBound> Provinces;  ///< rows as in the map
  std::vector<std::string_view> Orders;
  Table<std::string_view, TextLineBound> TextLines;
  bool HasPlayers = false;  ///< else nobody has a name
  std::array<std::optional<std::string_view>, CountryCount> Players;
};

/// Reads the records of one file.
class GameReader {
 public:
  GameReader(std::string_view bytes, const std::string& fileName, const Map& map)
      : map_(map),
        scan_(map),
        fileName_(fileName),
        hasHeader_(BeginsWithHeader(bytes)),
        reader_(bytes, fileName, LoneQuotes::Refused) {
    // The very first files began with the season.
    layout_ = LayoutOf(hasHeader_ ? reader_.Text("a header") : OldestHeader);
  }

  const Layout& FileLayout() const { return layout_; }
  const Contents& Found() const { return contents_; }

  /// Reads the whole file; the first location name that is not on the map, or nothing.
  std::optional<std::string> Read() {
    ExpectGame();
    ReadUnits();
    if (auto unknown = ReadProvinces()) return unknown;
    ReadOrders();
    ReadTexts();
    ReadPlayers();
    CheckUnits();
    return std::nullopt;
  }

  /// What was found behind the end of the game, in a sentence; empty where there is nothing.
  std::string Remark() {
    if (reader_.AtEnd()) return {};
    return text::NameInText(fileName_) + ", line " + std::to_string(reader_.Line()) +
           ": what stands behind the end of the game is not read, and is lost when it is saved.";
  }

 private:
  /// A text in which old abbreviations give way to new ones. Hardly any text holds one, so that
  /// only those that do are copied.
  std::string_view ReadFixed(std::string_view expected) {
    const std::string_view field = reader_.Text(expected);
    if (!scan_.Finds(field)) return field;
    std::string& fixed = fixedTexts_.emplace_front(field);
    FixNames(map_, fixed);
    return fixed;
  }

  /// A file that neither names itself a game nor begins like the oldest ones is none at all, and
  /// what it lacks to be one would tell nobody anything.
  void ExpectGame() {
    try {
      ReadSituation();
    } catch (const FileError&) {
      if (hasHeader_) throw;
      throw FileError(text::NameInText(fileName_) + " is no game file.");
    }
  }

  void ReadSituation() {
    if (layout_.HasTitle) contents_.Title = reader_.Text("a title");
    contents_.Season = reader_.Text("a season");
    contents_.Year = reader_.Number("a year");
    contents_.Stage = reader_.Text("a stage");
  }

  void ReadUnits() {
    contents_.Units.SetCount(reader_.NumberUpTo(UnitBound, "the number of units"));
    for (UnitFields& unit : contents_.Units) {
      unit.Power = ReadPower(reader_);
      unit.UnitType = ReadUnitType(reader_);
      unit.Location = ReadFixed("a unit's location");
      unit.Status = reader_.Text("a unit's status");
      if (layout_.HasDislodgedFrom) {
        unit.DislodgedFrom = ReadFixed("where a unit was dislodged from");
      }
      unit.PreviousLocation =
          layout_.HasPreviousLocation ? ReadFixed("a unit's previous location") : Unknown;
    }
  }

  std::optional<std::string> ReadProvinces() {
    const int count = reader_.NumberUpTo(CountBound, "the number of locations");
    contents_.Provinces.SetCount(map_.Provinces.Count());
    for (int i = 1; i <= count; ++i) {
      const std::string_view name = ReadFixed("a location");
      const int row = FindProvince(map_, name);
      if (row == 0) return std::string(name);
      ProvinceFields& province = contents_.Provinces[row];
      province.IsFound = true;
      province.Owner = reader_.Text("a location's owner");
      province.Uncontested =
          !layout_.HasUncontested || reader_.Flag("a location's uncontested flag");
      if (layout_.HasPreviousOwner) province.PreviousOwner = reader_.Text("a previous owner");
      if (layout_.ForgetsPreviousOwner) province.PreviousOwner = Unknown;
    }
    return std::nullopt;
  }

  void ReadOrders() {
    const int count = reader_.NumberUpTo(CountBound, "the number of orders");
    // The count may be wrong by any number, so that room is made for a usual one only.
    contents_.Orders.reserve(UnitBound);
    for (int i = 1; i <= count; ++i)
      contents_.Orders.push_back(ReadFixed("an order"));
  }

  void ReadTexts() {
    // Old versions end here, or before the players.
    if (reader_.AtEnd()) return;
    contents_.TextLines.SetCount(reader_.NumberUpTo(TextLineBound, "the number of text lines"));
    for (std::string_view& line : contents_.TextLines)
      line = ReadFixed("a text line");
  }

  void ReadPlayers() {
    contents_.HasPlayers = !reader_.AtEnd();
    if (!contents_.HasPlayers) return;
    const int count = reader_.NumberUpTo(CountBound, "the number of powers");
    for (int i = 1; i <= count; ++i) {
      const int country = FindCountry(reader_.Text("a power"));
      const std::string_view name = reader_.Text("a player's name");
      // The player of a power that this board does not have is passed over.
      if (country != 0) contents_.Players[static_cast<std::size_t>(country - 1)] = name;
    }
  }

  /// The file format does not keep a unit from standing nowhere, but nothing could be done with it.
  void CheckUnits() const {
    for (const UnitFields& unit : contents_.Units) {
      if (FindProvince(map_, unit.Location) != 0) continue;
      std::string text = text::NameInText(fileName_);
      text += ": expected every unit in a location of the map, found ";
      text.append(unit.Power).append(" ").append(unit.UnitType);
      throw FileError(text.append("(").append(Shortened(unit.Location)).append(")."));
    }
  }

  const Map& map_;
  NameFixScan scan_;
  const std::string& fileName_;
  bool hasHeader_;
  RecordReader reader_;
  Layout layout_;
  Contents contents_;
  std::forward_list<std::string> fixedTexts_;  ///< where texts with an old abbreviation live
};

// What a file's version does not hold stays in the situation as it was, or becomes "unknown".

void TakeUnits(const Contents& contents, const Layout& layout, GameState& game) {
  game.Units.SetCount(contents.Units.Count());
  const UnitFields* fields = contents.Units.begin();
  for (Unit& unit : game.Units) {
    text::Assign(unit.Power, fields->Power);
    text::Assign(unit.UnitType, fields->UnitType);
    text::Assign(unit.Location, fields->Location);
    text::Assign(unit.Status, fields->Status);
    if (layout.HasDislodgedFrom) text::Assign(unit.DislodgedFrom, fields->DislodgedFrom);
    text::Assign(unit.PreviousLocation, fields->PreviousLocation);
    ++fields;
  }
}

void TakeProvinces(const Contents& contents, const Layout& layout, GameState& game) {
  ProvinceState* province = game.Provinces.begin();
  for (const ProvinceFields& fields : contents.Provinces) {
    if (fields.IsFound) {
      text::Assign(province->Owner, fields.Owner);
      province->Uncontested = fields.Uncontested;
      if (layout.HasPreviousOwner || layout.ForgetsPreviousOwner) {
        text::Assign(province->PreviousOwner, fields.PreviousOwner);
      }
    }
    ++province;
  }
}

void TakePlayers(const Contents& contents, GameState& game) {
  auto player = contents.Players.begin();
  for (Country& country : game.Countries) {
    if (*player) country.PlayerName = **player;
    if (!contents.HasPlayers) country.PlayerName.clear();
    ++player;
  }
}

/// Nothing in here fails, so that a situation is never half that of the file. Lists and report
/// belong to the season that was played before.
void Take(const Contents& contents, const Layout& layout, GameState& game) {
  game.Title = contents.Title;
  game.Season = contents.Season;
  game.Year = contents.Year;
  game.Stage = StageOf(contents.Stage);
  game.OtherStage = game.Stage == Stage::Other ? contents.Stage : std::string_view{};
  TakeUnits(contents, layout, game);
  TakeProvinces(contents, layout, game);
  game.OrdersList.assign(contents.Orders.begin(), contents.Orders.end());
  game.TextLines.SetCount(contents.TextLines.Count());
  std::copy(contents.TextLines.begin(), contents.TextLines.end(), game.TextLines.begin());
  TakePlayers(contents, game);
  game.RetreatsList.clear();
  game.AdjustmentsList.clear();
  game.ReportLines.SetCount(0);
}

}  // namespace

std::optional<std::string> ParseGameFile(std::string_view bytes, const std::string& fileName,
                                         GameState& game, std::string* remark) {
  GameReader reader(bytes, fileName, *game.Map);
  if (auto unknown = reader.Read()) return unknown;
  if (remark != nullptr) *remark = reader.Remark();
  Take(reader.Found(), reader.FileLayout(), game);
  return std::nullopt;
}

std::string UnknownProvinceText(std::string_view location) {
  return std::string("Unknown province: ").append(Shortened(location));
}

std::string FormatGameFile(const GameState& game) {
  constexpr std::size_t usualSize = 4096;
  RecordWriter writer(usualSize);
  writer.Text(WrittenHeader).EndRecord();
  writer.Text(game.Title).Text(game.Season).Number(game.Year).Text(StageText(game)).EndRecord();
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
  return writer.Take();
}

std::optional<FileMark> ReadGameFile(GameState& game, const std::filesystem::path& file,
                                     Messages& messages, Streams streams) {
  MarkedBytes read = ReadMarkedFile(file, streams);
  std::string remark;
  if (const auto unknown = ParseGameFile(read.Bytes, read.Mark.Path, game, &remark)) {
    messages.Show(UnknownProvinceText(*unknown), Icon::Exclamation);
    return std::nullopt;
  }
  if (!remark.empty()) messages.Show(remark, Icon::Exclamation);
  game.FileName = read.Mark.Path;
  return std::move(read.Mark);
}

}  // namespace orb::model
