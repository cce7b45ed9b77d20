#include "model/errors.h"
#include "model/map_files.h"
#include "model/new_game.h"
#include "orders/order_list.h"
#include "render/hit_map.h"
#include "render/map_view.h"
#include "session/commands.h"
#include "session/session.h"
#include "support/blank_surface.h"
#include "support/fuzzing.h"

#include <array>
#include <fstream>
#include <unistd.h>

// The input is the files of a map, parted by NULs. What is read must be a map that can be played
// on.

namespace orb::fuzz {
namespace {

namespace fs = std::filesystem;

constexpr std::array<const char*, 5> Files{"fixnames.dat", "prov.dat", "conna.dat", "connf.dat",
                                           "start.dat"};

/// A directory of map files that goes with the program.
class MapDirectory {
 public:
  MapDirectory() : path_(fs::temp_directory_path() / ("orb-fuzz-" + std::to_string(getpid()))) {
    fs::create_directory(path_);
    for (std::size_t i = 0; i < Files.size(); ++i)
      fs::create_symlink(files_[i].Path(), path_ / Files[i]);
  }
  MapDirectory(const MapDirectory&) = delete;
  MapDirectory& operator=(const MapDirectory&) = delete;
  ~MapDirectory() {
    std::error_code ignored;
    fs::remove_all(path_, ignored);
  }

  void Write(std::string_view input) const {
    const auto parts = Parts(input, Files.size());
    for (std::size_t i = 0; i < Files.size(); ++i)
      files_[i].Write(parts[i]);
  }
  const fs::path& Path() const { return path_; }

 private:
  fs::path path_;
  std::array<MemoryFile, Files.size()> files_;
};

void CheckMap(const model::Map& map) {
  const int count = map.Provinces.Count();
  Require(count >= 1 && count <= model::ProvinceBound, "a number of places out of bounds");
  Require(map.NameFixes.Count() <= model::NameFixBound, "too many names");
  for (int row = 1; row <= count; ++row) {
    const std::string& name = map.Provinces[row].Name;
    const int found = model::FindProvince(map, name);
    Require(found >= 1 && found <= row && map.Provinces[found].Name == name, "not found", name);
    // A coast may stand alone; it belongs to no province then.
    const int place = model::ProvinceOf(map, row);
    Require(place >= 0 && place <= count, "a province off the map", name);
    for (const auto* adjacency : {&map.ArmyAdjacency, &map.FleetAdjacency}) {
      for (const int neighbour : adjacency->at(static_cast<std::size_t>(row - 1)))
        Require(neighbour >= 0 && neighbour <= count, "a neighbour off the map", name);
    }
  }
}

/// Whether games on the map can be told apart by the names of its places: of two places of one name
/// only the first is ever found, and a name that the fixes change again at the next reading is
/// lost.
bool HasLastingNames(const model::Map& map) {
  for (int row = 1; row <= map.Provinces.Count(); ++row) {
    std::string name = map.Provinces[row].Name;
    if (model::FindProvince(map, name) != row) return false;
    model::FixNames(map, name);
    if (name != map.Provinces[row].Name) return false;
  }
  return true;
}

void Check(const model::GameState& game) {
  if (HasLastingNames(*game.Map)) CheckGame(game);
}

void Draw(const model::GameState& game) {
  BlankSurface surface;
  for (const settings::MapMode mode : {settings::MapMode::Colour3D, settings::MapMode::BlackWhite})
    render::RenderMap(game, {mode, true, true, true}, {}, surface);
  const render::HitMap hits(1.25);
  const int hit = hits.LocationAt(game, {0.3, 0.6}, "F");
  Require(hit >= 0 && hit <= game.Provinces.Count(), "a hit off the map");
}

/// Every unit moves to the first place beside it.
void Play(const model::GameState& start) {
  session::Session game({start});
  YesToAll messages;
  game.Run([&](session::Situation& now) {
    for (const model::Unit& unit : start.Units) {
      const int row = model::FindProvince(*start.Map, unit.Location);
      const int beside = start.Map->ArmyAdjacency.at(static_cast<std::size_t>(row - 1))[0];
      session::FileOrder(now, unit.Power + " " + unit.UnitType + "(" + unit.Location + ") - " +
                                  model::LocationName(*start.Map, beside));
    }
    return session::Resolve(now, messages);
  });
  Check(game.Now().Game);
  Draw(game.Now().Game);
}

void ReadMap(std::string_view input) {
  static const MapDirectory directory;
  directory.Write(input);
  std::shared_ptr<const model::Map> map;
  if (!IsAccepted([&] { map = model::LoadMap(directory.Path()); })) return;
  CheckMap(*map);
  model::GameState game = model::EmptyGame(map);
  if (!IsAccepted([&] { model::BlankGame(game, directory.Path()); })) return;
  Check(game);
  Draw(game);
  if (!IsAccepted([&] { model::NewGame(game, directory.Path()); })) return;
  Check(game);
  Draw(game);
  IsAccepted([&] { Play(game); });
}

}  // namespace
}  // namespace orb::fuzz

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  orb::fuzz::ReadMap(orb::fuzz::Text(data, size));
  return 0;
}
