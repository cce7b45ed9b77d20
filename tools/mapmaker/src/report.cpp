#include "report.h"

#include <fstream>
#include <stdexcept>

namespace mapmaker {

void WriteContacts(const QString& path, const Contacts& contacts,
                   const std::vector<Location>& locations) {
  std::ofstream file(path.toStdString());
  const auto name = [&](int row) { return locations[static_cast<std::size_t>(row - 1)].Abbreviation; };
  for (const auto& [rows, length] : contacts)
    file << name(rows.first) << ' ' << name(rows.second) << ' ' << length << '\n';
  if (!file.flush()) throw std::runtime_error(path.toStdString() + ": cannot be written");
}

}  // namespace mapmaker
