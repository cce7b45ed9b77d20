#include "json.h"

#include <QFile>
#include <QJsonDocument>

#include <stdexcept>

namespace mapmaker {

QJsonObject ReadJson(const QString& path) {
  QFile file(path);
  if (!file.open(QIODevice::ReadOnly))
    throw std::runtime_error(path.toStdString() + ": cannot be read");
  QJsonParseError error;
  const QJsonDocument document = QJsonDocument::fromJson(file.readAll(), &error);
  if (document.isNull())
    throw std::runtime_error(path.toStdString() + ": " + error.errorString().toStdString());
  return document.object();
}

Line ToLine(const QJsonArray& points) {
  Line line;
  for (const QJsonValue point : points)
    line.push_back({point[0].toDouble(), point[1].toDouble()});
  return line;
}

}  // namespace mapmaker
