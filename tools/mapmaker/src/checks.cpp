#include "checks.h"

#include "projection.h"

#include <fstream>
#include <set>
#include <stdexcept>

namespace mapmaker {
namespace {

/// A shorter contact, in pixel edges, could be taken for a mere corner.
constexpr int LeastContact = 4;

using Pair = std::pair<std::string, std::string>;

std::set<Pair> ReadPairs(const QString& path) {
  std::ifstream file(path.toStdString());
  std::set<Pair> pairs;
  for (Pair pair; file >> pair.first >> pair.second;)
    pairs.insert(pair);
  if (pairs.empty()) throw std::runtime_error(path.toStdString() + ": cannot be read");
  return pairs;
}

void Fail(const std::string& what, const std::string& names) {
  if (!names.empty()) throw std::runtime_error(what + names);
}

}  // namespace

void CheckContacts(const Contacts& contacts, const Tables& tables, const QString& neighboursPath) {
  const auto name = [&](int row) {
    return tables.Locations[static_cast<std::size_t>(row - 1)].Abbreviation;
  };
  std::set<Pair> missing = ReadPairs(neighboursPath);
  std::string wrong;
  for (const auto& [rows, length] : contacts) {
    const Pair pair{name(rows.first), name(rows.second)};
    if (missing.erase(pair) == 0 || length < LeastContact)
      wrong += ' ' + pair.first + '-' + pair.second;
  }
  Fail("touch though they are no neighbours, or too shortly:", wrong);
  std::string lost;
  for (const Pair& pair : missing)
    lost += ' ' + pair.first + '-' + pair.second;
  Fail("neighbours that do not touch:", lost);
}

void CheckUnitPoints(const QImage& hitPicture, const Tables& tables) {
  std::string stray;
  for (std::size_t i = 0; i < tables.Locations.size(); ++i) {
    const Point& unit = tables.Placements[i].Unit;
    const int found = hitPicture.pixelIndex(static_cast<int>(unit.X * MapWidth),
                                            static_cast<int>(unit.Y * MapHeight));
    if (tables.Locations[i].Type != Kind::Coast && found != static_cast<int>(i + 1))
      stray += ' ' + tables.Locations[i].Abbreviation;
  }
  Fail("unit points outside their province:", stray);
}

}  // namespace mapmaker
