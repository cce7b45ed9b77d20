#include "model/map_files.h"

#include "model/errors.h"
#include "model/files.h"
#include "model/place.h"
#include "model/record_file.h"
#include "text/encoding.h"
#include "text/strings.h"

#include <algorithm>
#include <vector>

namespace orb::model {
namespace {

namespace fs = std::filesystem;

[[noreturn]] void FailAtLine(const std::string& fileName, int line, const std::string& problem) {
  throw IndexOutOfRange(text::NameInText(fileName) + ", line " + std::to_string(line) + ": " +
                        problem);
}

/// One line of connections. A later line for the same location overwrites only as many neighbours
/// as it has itself.
void LoadAdjacencyLine(std::string_view line, const Map& map, Adjacency& adjacency,
                       const std::string& fileName, int lineNumber) {
  std::string fixed(line);
  // Each fix acts once on the whole line, not on each of its fields.
  FixNames(map, fixed);
  std::string_view rest = fixed;
  const std::string_view name = text::NextField(rest);
  const int row = FindProvince(map, name);
  if (row == 0) {
    FailAtLine(fileName, lineNumber,
               "expected a location of prov.dat, found \"" + Shortened(name) + "\".");
  }
  auto& neighbours = adjacency[static_cast<std::size_t>(row - 1)];
  for (std::size_t k = 0; !rest.empty(); ++k) {
    const std::string_view neighbour = text::NextField(rest);
    if (k == neighbours.size()) {
      FailAtLine(fileName, lineNumber,
                 "expected at most " + std::to_string(NeighbourBound) + " neighbours of " +
                     Shortened(name) + ", found more.");
    }
    neighbours[k] = static_cast<std::int16_t>(FindProvince(map, neighbour));
  }
}

/// The file of name fixes may be missing, or be none that can be read: then there are no fixes.
std::string ReadNameFixes(const fs::path& file) {
  try {
    return ReadFile(file);
  } catch (const FileError&) {
    return {};
  }
}

/// The abbreviation that the fixes, made once, turn into one that they would change again: every
/// time that a game with it is saved and opened it would be another. Empty where there is none.
std::string RestlessName(const Map& map) {
  std::vector<std::string> names;
  for (const Province& province : map.Provinces)
    names.push_back(province.Name);
  for (const NameFix& fix : map.NameFixes) {
    names.push_back(fix.From);
    FixNames(map, names.back());
  }
  const auto restless = std::ranges::find_if(names, [&](std::string again) {
    const std::string once = again;
    FixNames(map, again);
    return again != once;
  });
  return restless == names.end() ? std::string() : *restless;
}

/// The row that stands for a province and its coasts: that of whichever comes first in the file.
std::int16_t FirstRowOfPlace(const Map& map, std::string_view name) {
  int row = 1;
  while (!SamePlace(map.Provinces[row].Name, name))
    ++row;
  return static_cast<std::int16_t>(row);
}

/// A part of a point, as a fraction of the map. Far beyond its edge nothing could be drawn any
/// more.
float ReadFraction(RecordReader& reader, const std::string& expected) {
  constexpr float farthest = 100;
  const float fraction = reader.Fraction(expected);
  if (fraction < -farthest || fraction > farthest) {
    reader.Fail(expected + " (a fraction of the map)", std::to_string(fraction));
  }
  return fraction;
}

}  // namespace

void LoadNameFixes(std::string_view bytes, const std::string& fileName, Map& map) {
  RecordReader reader(bytes, fileName);
  while (!reader.AtEnd() && map.NameFixes.Count() < NameFixBound) {
    const std::string_view from = reader.Text("an old abbreviation");
    if (reader.AtEnd()) break;
    const std::string_view to = reader.Text("a new abbreviation");
    if (from.size() == FixLength && to.size() == FixLength) {
      map.NameFixes.Append({std::string(from), std::string(to)});
    }
  }
}

void LoadProvinces(std::string_view bytes, const std::string& fileName, Map& map) {
  // Games are saved with the names and the powers of the map.
  RecordReader reader(bytes, fileName, LoneQuotes::Refused);
  do {
    if (map.Provinces.Count() == ProvinceBound) {
      throw IndexOutOfRange(text::NameInText(fileName) + ": expected at most " +
                            std::to_string(ProvinceBound) + " locations, found more.");
    }
    Province& province = map.Provinces.Append();
    province.Name = reader.Text("a location's abbreviation");
    FixNames(map, province.Name);
    province.HomeCountry = reader.Text("a home power");
    province.IsSupplyCentre = reader.Number("a supply centre flag");
    province.LabelX = ReadFraction(reader, "a label's x");
    province.LabelY = ReadFraction(reader, "a label's y");
    province.UnitX = ReadFraction(reader, "a unit's x");
    province.UnitY = ReadFraction(reader, "a unit's y");
    province.FullName = reader.Text("a location's full name");
    map.Places.Append(FirstRowOfPlace(map, province.Name));
    map.Names.Insert(map.Provinces, map.Provinces.Count());
  } while (!reader.AtEnd());
}

void LoadAdjacency(std::string_view bytes, const std::string& fileName, const Map& map,
                   Adjacency& adjacency) {
  adjacency = {};
  if (bytes.empty()) {
    throw FileError(text::NameInText(fileName) +
                    ": expected the connections of a location, found an empty file.");
  }
  for (int line = 1; !bytes.empty(); ++line) {
    LoadAdjacencyLine(text::NextLine(bytes), map, adjacency, fileName, line);
  }
}

std::shared_ptr<const Map> LoadMap(const fs::path& directory) {
  auto map = std::make_shared<Map>();
  const fs::path fixes = directory / "fixnames.dat";
  // The fixes come first: they apply to all that is read after them.
  LoadNameFixes(ReadNameFixes(fixes), fixes.string(), *map);
  const fs::path provinces = directory / "prov.dat";
  LoadProvinces(ReadFile(provinces), provinces.string(), *map);
  const fs::path armies = directory / "conna.dat";
  LoadAdjacency(ReadFile(armies), armies.string(), *map, map->ArmyAdjacency);
  const fs::path fleets = directory / "connf.dat";
  LoadAdjacency(ReadFile(fleets), fleets.string(), *map, map->FleetAdjacency);
  return map;
}

std::shared_ptr<const Map> LoadMap(const fs::path& directory, Messages& messages) {
  auto map = LoadMap(directory);
  if (const std::string name = RestlessName(*map); !name.empty()) {
    std::string again = name;
    FixNames(*map, again);
    std::string text = text::NameInText((directory / "fixnames.dat").string());
    text.append(": the corrections do not come to rest: each time that a game is opened, \"");
    text.append(name).append("\" becomes \"").append(again).append("\".");
    messages.Show(text, Icon::Exclamation);
  }
  return map;
}

}  // namespace orb::model
