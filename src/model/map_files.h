#pragma once

#include "model/map.h"
#include "model/messages.h"

#include <filesystem>
#include <memory>
#include <string>
#include <string_view>

namespace orb::model {

/// Reads the map's definition from its directory: fixnames.dat (may be missing), prov.dat,
/// conna.dat and connf.dat, in this order. Throws FileError or IndexOutOfRange.
std::shared_ptr<const Map> LoadMap(const std::filesystem::path& directory);

/// The same; a message tells of name fixes that do not come to rest.
std::shared_ptr<const Map> LoadMap(const std::filesystem::path& directory, Messages& messages);

/// fixnames.dat: two text fields per line, the old and the new abbreviation. A pair counts only
/// when both are three characters long; reading stops at the 20th.
void LoadNameFixes(std::string_view bytes, const std::string& fileName, Map& map);

/// prov.dat: one location a line: abbreviation, home power or empty, supply centre flag, label x
/// and y, unit x and y, full name. 1 to 90 lines; their order is the order of every scan.
void LoadProvinces(std::string_view bytes, const std::string& fileName, Map& map);

/// conna.dat or connf.dat: a location's abbreviation, then those of the locations that an army or
/// a fleet can move to, separated by commas. An unknown neighbour is stored as 0; an unknown first
/// field or a 15th neighbour throws IndexOutOfRange.
void LoadAdjacency(std::string_view bytes, const std::string& fileName, const Map& map,
                   Adjacency& adjacency);

}  // namespace orb::model
