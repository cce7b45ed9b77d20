#include "model/country.h"
#include "model/errors.h"
#include "model/map_files.h"
#include "model/place.h"
#include "model/small_map.h"
#include "model/table.h"
#include "support/directories.h"
#include "support/scripted_messages.h"
#include "text/strings.h"

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
  EXPECT_EQ(model::FindCountry("ITA"), 7);
  for (const char* none : {"ita", "IT", "", "ITAL"})
    EXPECT_EQ(model::FindCountry(none), 0) << none;
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

TEST(Text, IsCutAndChangedByteByByte) {
  std::string_view line = "a, b,,c";
  std::vector<std::string> fields;
  while (!line.empty())
    fields.emplace_back(text::NextField(line));
  EXPECT_THAT(fields, ElementsAre("a", " b", "", "c"));
  std::string_view text = "one\r\ntwo\rthree\n\nfour";
  std::vector<std::string> lines;
  while (!text.empty())
    lines.emplace_back(text::NextLine(text));
  EXPECT_THAT(lines, ElementsAre("one", "two", "three", "", "four"));
  EXPECT_EQ(text::UpperCase("az\xe4\xfc{"), "AZ\xe4\xfc{");
  EXPECT_EQ(text::LowerCase("AZ\xc4\xdc["), "az\xc4\xdc[");
  EXPECT_EQ(text::Trim("  \ta b\t "), "\ta b\t");
}

TEST(Text, APlaceIsItsFirstThreeCharacters) {
  const std::vector<std::tuple<std::string, std::string, bool>> cases = {
      {"Stp", "Stp.n", true}, {"Stp.s", "Stp.n", true}, {"Stp", "STP", false}, {"", "", true},
      {"St", "Stp", false},   {"", "Stp", false},       {"\x01", "", false},   {"St", "St", true}};
  for (const auto& [a, b, same] : cases) {
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

TEST(MapFiles, TwentyNameFixesAndNinetyLocationsAreKept) {
  Map map;
  model::LoadNameFixes("\"ABC\",\"D,F\"\r\n" + Repeat(25, "abc,def\r\n") + "never,read",
                       "fixnames.dat", map);
  EXPECT_EQ(map.NameFixes.Count(), 20);
  EXPECT_EQ(map.NameFixes[1].To, "D,F");
  model::LoadProvinces(Repeat(90, "Lon,,0,0,0,0,0,x\r\n"), "prov.dat", map);
  EXPECT_EQ(map.Provinces.Count(), 90);
  EXPECT_EQ(model::FindProvince(map, "Lon"), 1) << "of equal names the first row wins";
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

TEST(MapFiles, FixesThatDoNotComeToRestAreTold) {
  const std::vector<std::pair<std::string, std::string>> cases = {
      {"\"Lpl\",\"Lvp\"\n", ""},
      // Each is at rest by itself, and both are in this order, not in the other one.
      {"\"Lpl\",\"Lvl\"\n\"Lvl\",\"Lvp\"\n", ""},
      {"\"Lvl\",\"Lvp\"\n\"Lpl\",\"Lvl\"\n", "\"Lvl\" becomes \"Lvp\"."},
      {"\"aaa\",\"bbb\"\n\"ccc\",\"aaa\"\n\"bbb\",\"ccc\"\n", "\"ccc\" becomes \"aaa\"."},
  };
  for (const auto& [fixes, says] : cases) {
    const TemporaryDirectory directory;
    for (const char* name : {"prov.dat", "conna.dat", "connf.dat"})
      std::filesystem::copy(DataDirectory() / name, directory.Path() / name);
    directory.Write("fixnames.dat", fixes);
    ScriptedMessages messages;
    model::LoadMap(directory.Path(), messages);
    std::string told;
    for (const auto& [text, icon] : messages.Shown)
      told += text;
    EXPECT_EQ(told.empty(), says.empty()) << told;
    EXPECT_THAT(told, HasSubstr(says));
  }
}

TEST(MapFiles, ABrokenOneIsRefusedWithItsNameAndReason) {
  struct Case {
    std::string File, Bytes;
    bool IsIndex;  ///< IndexOutOfRange rather than FileError
    std::string Says;
  };
  const std::vector<Case> cases = {
      {"prov.dat", "", false, "end of the file"},
      {"prov.dat", "Lon,ENG,1,0,0,-1e37,0,x\r\n", false, "unit's x (a fraction of the map)"},
      {"prov.dat", "Lon,ENG,1,0,0,0,0", false, "full name"},
      {"prov.dat", "Lon,ENG,yes,0,0,0,0,x\r\n", false, "yes"},
      {"prov.dat", "Lon,ENG,1,0,2,0,0,0,x\r\nWal,ENG", false, "line 2"},
      {"prov.dat", "Lon,ENG,1,nan,0,0,0,x\r\n", false, "nan"},
      {"prov.dat", Repeat(2, "Lon,ENG,1,0,0,0,0\r\n"), false, "unit's y"},
      {"prov.dat", "\"Lon,ENG,1,0,0,0,0,x\r\n", false, "closing quote"},
      {"prov.dat", "Lon,E\"NG,1,0,0,0,0,x\r\n", false, "double quote"},
      {"prov.dat", Repeat(91, "Lon,,0,0,0,0,0,x\r\n"), true, "90"},
      {"conna.dat", "", false, "empty"},
      {"connf.dat", "", false, "empty"},
      {"conna.dat", "Lon,Wal\r\nXyz,Wal\r\n", true, "line 2"},
      {"conna.dat", " Lon,Wal\r\n", true, "\" Lon\""},
      {"connf.dat", "Lon,NTH\r\n\r\nNTH,Lon\r\n", true, "line 2"},
      {"connf.dat", "NTH" + Repeat(15, ",Lon") + "\r\n", true, "14"},
  };
  for (const Case& c : cases) {
    SCOPED_TRACE(c.File + ": " + c.Bytes);
    const TemporaryDirectory directory;
    for (const char* name : {"prov.dat", "conna.dat", "connf.dat"})
      std::filesystem::copy(DataDirectory() / name, directory.Path() / name);
    std::filesystem::create_directory(directory.Path() / "fixnames.dat");
    ASSERT_NO_THROW(model::LoadMap(directory.Path())) << "fixnames.dat may be unreadable";
    directory.Write(c.File, c.Bytes);
    try {
      model::LoadMap(directory.Path());
      ADD_FAILURE() << "was accepted";
    } catch (const model::FatalError& error) {
      EXPECT_EQ(dynamic_cast<const IndexOutOfRange*>(&error) != nullptr, c.IsIndex);
      EXPECT_THAT(error.what(), HasSubstr(c.File));
      EXPECT_THAT(error.what(), HasSubstr(c.Says));
    }
    std::filesystem::remove(directory.Path() / c.File);
    EXPECT_THROW(model::LoadMap(directory.Path()), FileError) << "missing";
  }
}

}  // namespace
}  // namespace orb::tests
