#include "tables.h"

#include "json.h"

#include <QFile>
#include <QStringList>

#include <stdexcept>

namespace mapmaker {
namespace {

/// The fields of one line; a field in double quotes may hold commas.
std::vector<std::string> Fields(const QString& line) {
  std::vector<std::string> fields(1);
  bool quoted = false;
  for (const char c : line.toUtf8()) {
    if (c == '"') {
      quoted = !quoted;
    } else if (c == ',' && !quoted) {
      fields.emplace_back();
    } else {
      fields.back() += c;
    }
  }
  return fields;
}

/// The rows below the heading; every row must have `columns` fields.
std::vector<std::vector<std::string>> ReadCsv(const QString& path, std::size_t columns) {
  QFile file(path);
  if (!file.open(QIODevice::ReadOnly))
    throw std::runtime_error(path.toStdString() + ": cannot be read");
  std::vector<std::vector<std::string>> rows;
  const QStringList lines = QString::fromUtf8(file.readAll()).split('\n', Qt::SkipEmptyParts);
  for (const QString& line : lines.mid(1)) {
    rows.push_back(Fields(line));
    if (rows.back().size() != columns)
      throw std::runtime_error(path.toStdString() + ": bad row " + line.toStdString());
  }
  return rows;
}

Kind ToKind(const std::string& word) {
  if (word == "land") return Kind::Land;
  if (word == "water") return Kind::Water;
  if (word == "coast") return Kind::Coast;
  throw std::runtime_error("provinces.csv: unknown kind " + word);
}

void ReadLocations(const QString& directory, Tables& tables) {
  for (const auto& row : ReadCsv(directory + "/provinces.csv", 5))
    tables.Locations.push_back({row[0], row[1], ToKind(row[2]), row[3], row[4] == "1"});
  for (const auto& row : ReadCsv(directory + "/points.csv", 5)) {
    const std::size_t index = tables.Placements.size();
    if (index >= tables.Locations.size() || tables.Locations[index].Abbreviation != row[0])
      throw std::runtime_error("points.csv: " + row[0] + " is not where provinces.csv has it");
    tables.Placements.push_back(
        {{std::stod(row[1]), std::stod(row[2])}, {std::stod(row[3]), std::stod(row[4])}});
  }
  if (tables.Placements.size() != tables.Locations.size())
    throw std::runtime_error("points.csv: rows are missing");
}

std::vector<NamedRing> ToRings(const QJsonValue& list) {
  std::vector<NamedRing> rings;
  for (const QJsonValue entry : list.toArray()) {
    rings.push_back({entry["name"].toString().toStdString(), entry["area"].toString().toStdString(),
                     ToLine(entry["ring"].toArray())});
  }
  return rings;
}

std::map<std::string, Line> ToNamedLines(const QJsonObject& object) {
  std::map<std::string, Line> lines;
  for (auto entry = object.begin(); entry != object.end(); ++entry)
    lines[entry.key().toStdString()] = ToLine(entry.value().toArray());
  return lines;
}

Frame ReadFrame(const QString& path) {
  const QJsonObject json = ReadJson(path);
  const QJsonValue edges = json["frame"];
  const QJsonValue clip = json["lonlat_clip"];
  Frame frame;
  frame.Projection = json["projection"]["proj"].toString().toStdString();
  frame.Left = edges["x_min"].toDouble();
  frame.Right = edges["x_max"].toDouble();
  frame.Bottom = edges["y_min"].toDouble();
  frame.Top = edges["y_max"].toDouble();
  frame.ClipWest = clip["lon_min"].toDouble();
  frame.ClipEast = clip["lon_max"].toDouble();
  frame.ClipSouth = clip["lat_min"].toDouble();
  frame.ClipNorth = clip["lat_max"].toDouble();
  for (const QJsonValue entry : json["magnifiers"].toArray()) {
    frame.Magnifiers.push_back({{entry["fx"].toDouble(), entry["fy"].toDouble()},
                                entry["radius"].toDouble(),
                                entry["strength"].toDouble()});
  }
  return frame;
}

}  // namespace

Tables ReadTables(const QString& directory) {
  Tables tables;
  ReadLocations(directory, tables);
  for (const auto& row : ReadCsv(directory + "/regions.csv", 5))
    tables.Pieces.push_back({row[0], row[1], row[2], row[4]});
  const QJsonObject cuts = ReadJson(directory + "/cuts.json");
  tables.Cuts = ToNamedLines(cuts["cuts"].toObject());
  tables.Bridges = ToRings(cuts["bridges"]);
  tables.InlandWater = ToRings(cuts["inland_water"]);
  tables.Straits = ToRings(cuts["straits"]);
  tables.Seas = ToNamedLines(ReadJson(directory + "/seas.json")["seas"].toObject());
  tables.Frame = ReadFrame(directory + "/frame.json");
  return tables;
}

}  // namespace mapmaker
