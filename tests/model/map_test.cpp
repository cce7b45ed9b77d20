#include "model/country.h"
#include "model/errors.h"
#include "model/map_files.h"
#include "model/small_map.h"
#include "model/table.h"
#include "model/text.h"
#include "support/directories.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

namespace orb::tests {
namespace {

using model::FileError;
using model::IndexOutOfRange;
using model::Map;
using testing::ElementsAre;
using testing::HasSubstr;

std::string Repeat(int count, const std::string& text) {
  std::string all;
  for (int i = 0; i < count; ++i)
    all += text;
  return all;
}

TEST(Lookups, CompareWholeAbbreviationsExactly) {
  const auto map = SmallMap();
  const std::vector<std::pair<std::string_view, int>> provinces = {
      {"Lon", 1}, {"lon", 0},   {"LON", 0},   {"Lo", 0},  {"Lon ", 0}, {"", 0},
      {"Stp", 4}, {"Stp.n", 5}, {"Stp.s", 0}, {"NWG", 6}, {"Nrg", 0}};
  for (const auto& [name, row] : provinces)
    EXPECT_EQ(model::FindProvince(*map, name), row) << name;
  EXPECT_EQ(model::FindProvince(Map(), "Lon"), 0);
  const std::vector<std::pair<std::string_view, int>> countries = {
      {"ENG", 1}, {"FRA", 2}, {"GER", 3}, {"RUS", 4}, {"TUR", 5}, {"AUS", 6},
      {"ITA", 7}, {"eng", 0}, {"EN", 0},  {"", 0},    {"ENGL", 0}};
  for (const auto& [name, row] : countries)
    EXPECT_EQ(model::FindCountry(name), row) << name;
}

TEST(Lookups, OfEqualNamesTheFirstRowWins) {
  Map map;
  model::LoadProvinces("A,,0,0,0,0,0,x\r\nLon,,0,0,0,0,0,x\r\nLon,,1,0,0,0,0,x\r\n", "f", map);
  EXPECT_EQ(model::FindProvince(map, "Lon"), 2);
}

TEST(FixNames, EachPairReplacesItsFirstPlaceOneAfterAnother) {
  Map map;
  model::LoadNameFixes("ABC,XYZ\r\nXYZ,Lon\r\n", "fixnames.dat", map);
  const std::vector<std::pair<std::string, std::string>> cases = {
      {"ABCABC", "LonABC"},
      {"ENG A(ABC) - ABC", "ENG A(Lon) - ABC"},
      {"XYZ ABC", "Lon XYZ"},
      {"abc", "abc"},
      {"", ""},
      {"AB", "AB"}};
  for (const auto& [before, after] : cases) {
    std::string text = before;
    model::FixNames(map, text);
    EXPECT_EQ(text, after) << before;
  }
}

TEST(Text, FieldsAndLinesAreCutWithoutTrimming) {
  std::string_view line = "a, b,,c";
  std::vector<std::string> fields;
  while (!line.empty())
    fields.emplace_back(model::NextField(line));
  EXPECT_THAT(fields, ElementsAre("a", " b", "", "c"));
  std::string_view text = "one\r\ntwo\rthree\n\nfour";
  std::vector<std::string> lines;
  while (!text.empty())
    lines.emplace_back(model::NextLine(text));
  EXPECT_THAT(lines, ElementsAre("one", "two", "three", "", "four"));
}

TEST(Text, OnlyLettersOfTheAlphabetChangeCaseAndOnlyBlanksAreTrimmed) {
  EXPECT_EQ(model::UpperCase("az\xe4\xfc{"), "AZ\xe4\xfc{");
  EXPECT_EQ(model::LowerCase("AZ\xc4\xdc["), "az\xc4\xdc[");
  EXPECT_EQ(model::Trim("  \ta b\t "), "\ta b\t");
  EXPECT_EQ(model::Trim("   "), "");
}

TEST(Text, APlaceIsItsFirstThreeCharacters) {
  for (const auto& [a, b, same] :
       std::vector<std::tuple<std::string, std::string, bool>>{{"Stp", "Stp.n", true},
                                                               {"Stp.s", "Stp.n", true},
                                                               {"Stp", "STP", false},
                                                               {"St", "Stp", false},
                                                               {"", "", true},
                                                               {"", "Stp", false},
                                                               {"\x01", "", false},
                                                               {"St", "St", true}}) {
    EXPECT_EQ(model::SamePlace(a, b), same) << a << " " << b;
    EXPECT_EQ(model::PlaceCode(a) == model::PlaceCode(b), same) << a << " " << b;
  }
}

TEST(Table, IndicesRunFromOneToTheBound) {
  model::Table<int, 3> table;
  for (const int bad : {0, -1, 4})
    EXPECT_THROW(table[bad], IndexOutOfRange) << bad;
  for (const int row : {7, 8, 9})
    table.Append(row);
  EXPECT_THROW(table.Append(10), IndexOutOfRange);
  EXPECT_EQ(table.Count(), 3);
  table.Remove(1);
  EXPECT_THAT(std::vector<int>(table.begin(), table.end()), ElementsAre(8, 9));
  EXPECT_EQ(table[3], 9) << "rows past the count keep what they held";
  for (const int bad : {0, 3})
    EXPECT_THROW(table.Remove(bad), IndexOutOfRange) << bad;
  for (const int bad : {-1, 4})
    EXPECT_THROW(table.SetCount(bad), IndexOutOfRange) << bad;
}

TEST(MapFiles, HoldWhatTheirLinesSay) {
  const auto map = SmallMap();
  const model::Province& stp = map->Provinces[4];
  EXPECT_EQ(stp.HomeCountry, "RUS");
  EXPECT_EQ(stp.IsSupplyCentre, 1);
  EXPECT_EQ(stp.FullName, "Full, name");
  EXPECT_FLOAT_EQ(stp.LabelX, 0.1F);
  EXPECT_FLOAT_EQ(stp.LabelY, 0.25F);
  EXPECT_FLOAT_EQ(stp.UnitX, 0.3F);
  EXPECT_FLOAT_EQ(stp.UnitY, 1);
  EXPECT_EQ(map->FleetAdjacency[2][1], 6) << "NTH, NWG";
  EXPECT_EQ(map->ArmyAdjacency[2][0], 0);
}

TEST(MapFiles, NameFixesAreKeptUpToTwenty) {
  Map map;
  model::LoadNameFixes(
      "AB,XYZ\r\nABC,XYZW\r\n\"ABC\",\"D,F\"\r\n" + Repeat(25, "abc,def\r\n") + "never,read",
      "fixnames.dat", map);
  EXPECT_EQ(map.NameFixes.Count(), 20);
  EXPECT_EQ(map.NameFixes[1].To, "D,F");
}

TEST(MapFiles, ALineOfConnectionsIsFixedOnceAndOverwritesAnEarlierOne) {
  auto map = SmallMap();
  model::Adjacency rows{};
  model::LoadAdjacency("Lon,Lpl,XXX,Lpl\r\nStp,Lon,Wal,NTH\r\nStp,NTH,Lon\r\nWal\r\nNTH,\r\n",
                       "conna.dat", *map, rows);
  const auto row = [&](std::size_t place) {
    return std::vector<int>(rows[place - 1].begin(), rows[place - 1].begin() + 4);
  };
  EXPECT_THAT(row(1), ElementsAre(2, 0, 0, 0)) << "the second Lpl is not fixed";
  EXPECT_THAT(row(4), ElementsAre(3, 1, 3, 0)) << "the third entry stays";
  EXPECT_THAT(row(2), ElementsAre(0, 0, 0, 0));
  model::LoadAdjacency("Wal,Lon" + Repeat(13, ",Lon") + "\r\n", "conna.dat", *map, rows);
  EXPECT_EQ(rows[1][13], 1) << "14 neighbours fit";
  EXPECT_EQ(rows[0][0], 0) << "earlier rows are gone";
}

TEST(MapFiles, NinetyLocationsFit) {
  Map map;
  model::LoadProvinces(Repeat(90, "Lon,,0,0,0,0,0,x\r\n"), "prov.dat", map);
  EXPECT_EQ(map.Provinces.Count(), 90);
}

/// A data directory with one file replaced.
struct BrokenFile {
  std::string_view Name;
  std::string_view File;
  std::string Bytes;
  bool IsIndex;  ///< IndexOutOfRange rather than FileError
  std::string_view Says;
};

TEST(MapFiles, ABrokenOneIsRefusedWithItsNameAndReason) {
  const std::vector<BrokenFile> cases = {
      {"empty", "prov.dat", "", false, "end of the file"},
      {"cut off", "prov.dat", "Lon,ENG,1,0,0,0,0", false, "full name"},
      {"no number", "prov.dat", "Lon,ENG,yes,0,0,0,0,x\r\n", false, "yes"},
      {"comma as decimal point", "prov.dat", "Lon,ENG,1,0,2,0,0,0,x\r\nWal,ENG", false, "line 2"},
      {"not a number", "prov.dat", "Lon,ENG,1,nan,0,0,0,x\r\n", false, "nan"},
      {"a record of seven fields", "prov.dat", Repeat(2, "Lon,ENG,1,0,0,0,0\r\n"), false,
       "unit's y"},
      {"open quote", "prov.dat", "\"Lon,ENG,1,0,0,0,0,x\r\n", false, "closing quote"},
      {"91 lines", "prov.dat", Repeat(91, "Lon,,0,0,0,0,0,x\r\n"), true, "90"},
      {"empty", "conna.dat", "", false, "empty"},
      {"empty", "connf.dat", "", false, "empty"},
      {"unknown location", "conna.dat", "Lon,Wal\r\nXyz,Wal\r\n", true, "line 2"},
      {"blank before a name", "conna.dat", " Lon,Wal\r\n", true, "\" Lon\""},
      {"an empty line", "connf.dat", "Lon,NTH\r\n\r\nNTH,Lon\r\n", true, "line 2"},
      {"15 neighbours", "connf.dat", "NTH" + Repeat(15, ",Lon") + "\r\n", true, "14"},
  };
  for (const BrokenFile& c : cases) {
    SCOPED_TRACE(std::string(c.File) + ": " + std::string(c.Name));
    const TemporaryDirectory directory;
    for (const char* name : {"prov.dat", "conna.dat", "connf.dat"})
      std::filesystem::copy(DataDirectory() / name, directory.Path() / name);
    ASSERT_NO_THROW(model::LoadMap(directory.Path())) << "fixnames.dat may be missing";
    std::filesystem::create_directory(directory.Path() / "fixnames.dat");
    ASSERT_NO_THROW(model::LoadMap(directory.Path())) << "fixnames.dat may be unreadable";
    directory.Write(c.File, c.Bytes);
    try {
      model::LoadMap(directory.Path());
      ADD_FAILURE() << "was accepted";
    } catch (const model::FatalError& error) {
      EXPECT_EQ(dynamic_cast<const IndexOutOfRange*>(&error) != nullptr, c.IsIndex);
      EXPECT_THAT(error.what(), HasSubstr(std::string(c.File)));
      EXPECT_THAT(error.what(), HasSubstr(std::string(c.Says)));
    }
    std::filesystem::remove(directory.Path() / c.File);
    EXPECT_THROW(model::LoadMap(directory.Path()), FileError) << "missing";
  }
}

}  // namespace
}  // namespace orb::tests
