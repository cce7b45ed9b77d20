#pragma once

#include "model/map_files.h"

#include <memory>
#include <string>

namespace orb::tests {

/// Six locations and two name fixes: Lpl is now Wal, Nrg is now NWG.
inline std::shared_ptr<model::Map> SmallMap() {
  auto map = std::make_shared<model::Map>();
  model::LoadNameFixes("\"Lpl\",\"Wal\"\r\n\"Nrg\",\"NWG\"\r\n", "fixnames.dat", *map);
  std::string provinces;
  for (const char* row : {R"(Lon","ENG",1)", R"(Wal","ENG",0)", R"(NTH","",0)", R"(Stp","RUS",1)",
                          R"(Stp.n","RUS",0)", R"(Nrg","",0)"}) {
    provinces.append("\"").append(row).append(",.1,0.25,.3,1,\"Full, name\"\r\n");
  }
  model::LoadProvinces(provinces, "prov.dat", *map);
  model::LoadAdjacency("Lon,Wal\r\nWal,Lon\r\n", "conna.dat", *map, map->ArmyAdjacency);
  model::LoadAdjacency("Lon,NTH\r\nNTH,Lon,NWG\r\n", "connf.dat", *map, map->FleetAdjacency);
  return map;
}

}  // namespace orb::tests
