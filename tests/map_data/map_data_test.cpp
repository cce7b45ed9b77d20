#include "map_data/hit_picture.h"

#include "model/country.h"
#include "model/game_state.h"
#include "model/lookups.h"
#include "model/new_game.h"
#include "model/place.h"
#include "render/hit_map.h"
#include "support/boards.h"
#include "support/directories.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <map>
#include <memory>
#include <set>
#include <string>
#include <utility>
#include <vector>

namespace orb::tests {
namespace {

using testing::ContainerEq;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::Not;

/// Connections as texts "from-to", those both ways as two.
using Links = std::set<std::string>;

std::string ProvinceOf(const std::string& location) {
  return location.substr(0, 3);
}

class MapData : public testing::Test {
 protected:
  const std::string& Name(int row) const { return map_->Provinces[row].Name; }
  bool Water(int row) const { return IsWater(*map_, row); }

  void Connect(Links& links, int a, int b) const {
    links.insert(Name(a) + "-" + Name(b));
    links.insert(Name(b) + "-" + Name(a));
  }

  /// Calls with the rows on both sides of every pixel edge where two rows meet, 0 left out.
  template <class Visitor>
  static void ForContacts(const HitPicture& picture, Visitor visit) {
    for (int y = 0; y + 1 < picture.Height; ++y) {
      for (int x = 0; x + 1 < picture.Width; ++x) {
        const int a = picture.At(x, y);
        for (const int b : {picture.At(x + 1, y), picture.At(x, y + 1)}) {
          if (a != b && a != 0 && b != 0) visit(a, b);
        }
      }
    }
  }

  Links Shores(const HitPicture& picture) const;
  Links LinksOf(const model::Adjacency& adjacency) const;

  const std::shared_ptr<const model::Map> map_ = RealMap();
};

/// Lands whose border reaches the water: two pixels side by side in a square of four that holds
/// water as well.
Links MapData::Shores(const HitPicture& picture) const {
  Links shores;
  for (int y = 0; y + 1 < picture.Height; ++y) {
    for (int x = 0; x + 1 < picture.Width; ++x) {
      const std::array<int, 4> square = {picture.At(x, y), picture.At(x + 1, y),
                                         picture.At(x + 1, y + 1), picture.At(x, y + 1)};
      if (std::set<int>(square.begin(), square.end()).size() < 3) continue;
      if (std::none_of(square.begin(), square.end(), [&](int row) { return Water(row); })) continue;
      for (std::size_t i = 0; i < square.size(); ++i) {
        const int a = square.at(i);
        const int b = square.at((i + 1) % square.size());
        if (a == 0 || b == 0 || Water(a) || Water(b)) continue;
        if (!model::SamePlace(Name(a), Name(b))) Connect(shores, a, b);
      }
    }
  }
  return shores;
}

Links MapData::LinksOf(const model::Adjacency& adjacency) const {
  Links links;
  for (int row = 1; row <= map_->Provinces.Count(); ++row) {
    for (const int neighbour : adjacency.at(static_cast<std::size_t>(row - 1))) {
      if (neighbour != 0) links.insert(Name(row) + "-" + Name(neighbour));
    }
  }
  return links;
}

TEST_F(MapData, ArmiesMoveBetweenLandsThatTouchAndNowhereElse) {
  Links touching;
  ForContacts(ReadHitPicture(DataDirectory() / "maphit.bmp"), [&](int a, int b) {
    if (!Water(a) && !Water(b)) Connect(touching, a, b);
  });
  EXPECT_THAT(LinksOf(map_->ArmyAdjacency), ContainerEq(touching));
}

TEST_F(MapData, FleetsMoveWhereWatersAndCoastsTouchAndAlongCommonShores) {
  const HitPicture picture = SplitCoasts(ReadHitPicture(DataDirectory() / "maphit.bmp"), *map_);
  Links touching = Shores(picture);
  ForContacts(picture, [&](int a, int b) {
    if (Water(a) || Water(b)) Connect(touching, a, b);
  });
  EXPECT_THAT(LinksOf(map_->FleetAdjacency), ContainerEq(touching));
}

TEST_F(MapData, UnitsStandInTheirOwnProvinceOrOffTheirCoast) {
  const render::HitMap hitMap = render::LoadHitMap(DataDirectory(), *map_, 1);
  for (const model::Province& location : map_->Provinces) {
    const bool coast = location.Name.size() > 3;
    const int row = hitMap.LocationAt(*map_, {location.UnitX, location.UnitY}, coast ? "F" : "A");
    ASSERT_NE(row, 0) << location.Name;
    const bool offCoast = coast && model::IsAdjacent(*map_, "F", location.Name, Name(row));
    EXPECT_TRUE(offCoast || Name(row) == location.Name)
        << location.Name << " is drawn in " << Name(row);
  }
}

TEST_F(MapData, TheBoardHasItsNumberOfPlacesAndConnections) {
  std::map<std::string, int> kinds;
  for (int row = 1; row <= map_->Provinces.Count(); ++row) {
    const model::Province& location = map_->Provinces[row];
    ++kinds[location.Name.size() > 3 ? "coast" : Water(row) ? "water" : "land"];
    if (location.IsSupplyCentre != 0) ++kinds[location.HomeCountry.empty() ? "centre" : "home"];
  }
  EXPECT_THAT(kinds, ContainerEq(std::map<std::string, int>{
                         {"land", 56}, {"water", 19}, {"coast", 6}, {"centre", 12}, {"home", 22}}));
  Links links = LinksOf(map_->ArmyAdjacency);
  links.merge(LinksOf(map_->FleetAdjacency));
  std::set<std::pair<std::string, std::string>> pairs;
  for (const std::string& link : links) {
    const std::string from = ProvinceOf(link);
    const std::string to = ProvinceOf(link.substr(link.find('-') + 1));
    if (from < to) pairs.emplace(from, to);
  }
  EXPECT_EQ(pairs.size(), 206U);
}

TEST_F(MapData, EveryHomeCentreStartsWithAUnitOfItsPower) {
  model::GameState game = model::EmptyGame(map_);
  model::NewGame(game, DataDirectory());
  EXPECT_EQ(game.Season + " " + std::to_string(game.Year), "Spring 1901");
  std::map<std::string, std::string> units;
  std::vector<std::string> fleets;
  for (const model::Unit& unit : game.Units) {
    EXPECT_TRUE(model::CanStandIn(*map_, unit.UnitType, unit.Location)) << unit.Location;
    EXPECT_TRUE(units.emplace(ProvinceOf(unit.Location), unit.Power).second) << unit.Location;
    if (unit.UnitType == "F") fleets.push_back(unit.Location);
  }
  std::map<std::string, std::string> homes;
  for (const model::Province& location : map_->Provinces) {
    if (location.IsSupplyCentre != 0 && !location.HomeCountry.empty()) {
      homes.emplace(location.Name, location.HomeCountry);
    }
  }
  EXPECT_THAT(units, ContainerEq(homes));
  EXPECT_THAT(fleets, ElementsAre("Lon", "Edi", "Bre", "Kie", "Sev", "Stp.s", "Ank", "Tri", "Nap"));
}

TEST_F(MapData, NameFixesGiveLocationsAndLeaveTheMapsOwnTextsAlone) {
  ASSERT_GT(map_->NameFixes.Count(), 0);
  std::vector<std::string> texts;
  for (const model::Country& country : model::FixedCountries()) {
    texts.push_back(country.Abbreviation);
    texts.push_back(country.Name);
  }
  for (const model::Province& location : map_->Provinces) {
    texts.push_back(location.Name);
    texts.push_back(location.FullName);
  }
  for (const model::NameFix& fix : map_->NameFixes) {
    EXPECT_NE(model::FindProvince(*map_, fix.To), 0) << fix.From << " gives " << fix.To;
    for (const std::string& text : texts)
      EXPECT_THAT(text, Not(HasSubstr(fix.From)));
  }
}

}  // namespace
}  // namespace orb::tests
