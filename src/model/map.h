#pragma once

#include "model/place.h"
#include "model/table.h"

#include <array>
#include <cstdint>
#include <string>
#include <string_view>

namespace orb::model {

constexpr int ProvinceBound = 90;
constexpr int NeighbourBound = 14;
constexpr int NameFixBound = 20;

/// One map location: a land or sea province, or one coast of a province. Points are fractions
/// 0.0..1.0 of the map's width and height.
struct Province {
  std::string Name;         ///< the abbreviation: "Lon", "NTH", "Stp.n"
  std::string HomeCountry;  ///< abbreviation of the power it belongs to at the start, or empty
  std::int16_t IsSupplyCentre = 0;
  float LabelX = 0, LabelY = 0;  ///< where the label and a dislodged unit are drawn
  float UnitX = 0, UnitY = 0;    ///< where a unit in place is drawn
  std::string FullName;
};

constexpr std::size_t FixLength = 3;

/// An old abbreviation and the one that takes its place, both of FixLength characters.
struct NameFix {
  std::string From;
  std::string To;
};

/// Rows of neighbouring locations; the first 0 ends a row for every reader.
using Adjacency = std::array<std::array<std::int16_t, NeighbourBound>, ProvinceBound>;

/// Finds a location's row by its abbreviation without a scan; of equal names the first row wins.
class NameIndex {
 public:
  void Insert(const Table<Province, ProvinceBound>& provinces, int row);
  int Find(const Table<Province, ProvinceBound>& provinces, std::string_view name) const;

 private:
  std::array<std::uint8_t, 256> slots_{};   ///< rows; 0 is free
  std::array<std::uint64_t, 256> codes_{};  ///< of the names of those rows
};

/// The map that games are played on: loaded once, never changed by play.
struct Map {
  Table<Province, ProvinceBound> Provinces;
  Table<std::int16_t, ProvinceBound> Places;  ///< the first row of the same place, for each row
  Adjacency ArmyAdjacency{};
  Adjacency FleetAdjacency{};
  Table<NameFix, NameFixBound> NameFixes;
  NameIndex Names;
};

/// Row 1..count of the location with this abbreviation (exact, case-sensitive), or 0. A coast is
/// found only under its own abbreviation.
int FindProvince(const Map& map, std::string_view name);

/// The row of the province that a location is, or is a coast of; 0 when it is unknown.
int ProvinceOf(const Map& map, std::string_view location);
int ProvinceOf(const Map& map, int row);

/// The abbreviation of the location in a row; empty for row 0.
const std::string& LocationName(const Map& map, int row);

/// Applies every name fix in order to the first place where its old text occurs: those three
/// characters give way to the new abbreviation.
void FixNames(const Map& map, std::string& text);

/// Tells texts that FixNames leaves alone, which are nearly all, at one look per character. The map
/// must outlive it.
class NameFixScan {
 public:
  explicit NameFixScan(const Map& map);

  /// Whether any old abbreviation occurs in the text.
  bool Finds(std::string_view text) const {
    if (text.size() < 3) return false;
    const char* const end = text.data() + text.size() - 2;
    for (const char* at = text.data(); at != end; ++at) {
      if (starts_[static_cast<unsigned char>(*at)] && FindsAt(at)) return true;
    }
    return false;
  }

 private:
  bool FindsAt(const char* place) const;

  const Table<NameFix, NameFixBound>& fixes_;
  std::array<bool, 256> starts_{};  ///< the first characters of the old abbreviations
};

}  // namespace orb::model
