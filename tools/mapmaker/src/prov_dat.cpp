#include "prov_dat.h"

#include <fstream>
#include <iomanip>
#include <stdexcept>

namespace mapmaker {

void WriteProvDat(const QString& path, const Tables& tables) {
  std::ofstream file(path.toStdString(), std::ios::binary);
  file << std::fixed << std::setprecision(4);
  for (std::size_t i = 0; i < tables.Locations.size(); ++i) {
    const Location& location = tables.Locations[i];
    const Placement& placement = tables.Placements[i];
    file << '"' << location.Abbreviation << "\",\"" << location.Home << "\","
         << (location.IsSupplyCentre ? 1 : 0) << ',' << placement.Label.X << ','
         << placement.Label.Y << ',' << placement.Unit.X << ',' << placement.Unit.Y << ",\""
         << location.FullName << "\"\r\n";
  }
  if (!file.flush()) throw std::runtime_error(path.toStdString() + ": cannot be written");
}

}  // namespace mapmaker
