#include "ui/recovery/recovery_copy.h"

#include "model/errors.h"
#include "model/game_file.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <filesystem>
#include <system_error>
#include <utility>
#include <vector>

namespace orb::ui {
namespace {

// The names in the note.
const QString File = QStringLiteral("file");
const QString OwnFile = QStringLiteral("ownFile");
const QString ReadOnly = QStringLiteral("readOnly");
const QString Time = QStringLiteral("time");
const QString Retreats = QStringLiteral("retreats");
const QString Adjustments = QStringLiteral("adjustments");

/// Each byte as the character of its number: JSON knows no bytes, and a path may hold any.
QJsonValue jsonOf(const std::string& bytes) {
  return QString::fromLatin1(bytes.data(), static_cast<qsizetype>(bytes.size()));
}

std::string bytesOf(const QJsonValue& value) {
  return value.toString().toLatin1().toStdString();
}

/// As it is found from any folder: the next start may be in another one.
QJsonValue jsonOfPath(const std::string& file) {
  std::error_code error;
  const std::filesystem::path path = std::filesystem::absolute(file, error);
  return jsonOf(file.empty() || error ? file : path.string());
}

QJsonArray jsonOf(const std::vector<std::string>& lines) {
  QJsonArray array;
  for (const std::string& line : lines)
    array << jsonOf(line);
  return array;
}

std::vector<std::string> linesOf(const QJsonValue& value) {
  std::vector<std::string> lines;
  const QJsonArray array = value.toArray();
  for (const auto& line : array)
    lines.push_back(bytesOf(line));
  return lines;
}

/// In decimals: a number of JSON has not the digits for it.
template <class Number>
QJsonValue textOf(Number number) {
  return QString::number(number);
}

QJsonObject jsonOf(const model::FileMark& mark) {
  return {{QStringLiteral("path"), jsonOfPath(mark.Path)},
          {QStringLiteral("device"), textOf(mark.Device)},
          {QStringLiteral("inode"), textOf(mark.Inode)},
          {QStringLiteral("size"), textOf(mark.Size)},
          {QStringLiteral("modified"), textOf(mark.Modified)},
          {QStringLiteral("hash"), textOf(mark.Hash)}};
}

model::FileMark markOf(const QJsonObject& note) {
  const auto number = [&note](const char* name) {
    return note[QLatin1String(name)].toString().toULongLong();
  };
  model::FileMark mark;
  mark.Path = bytesOf(note[QStringLiteral("path")]);
  mark.Device = number("device");
  mark.Inode = number("inode");
  mark.Size = number("size");
  mark.Modified = note[QStringLiteral("modified")].toString().toLongLong();
  mark.Hash = number("hash");
  return mark;
}

}  // namespace

std::string formatRecoveryCopy(const session::Situation& situation, const QDateTime& time) {
  const model::GameState& game = situation.Game;
  QJsonObject note{{File, jsonOfPath(game.FileName)},
                   {ReadOnly, situation.ReadOnly},
                   {Time, time.toString(Qt::ISODate)},
                   {Retreats, jsonOf(game.RetreatsList)},
                   {Adjustments, jsonOf(game.AdjustmentsList)}};
  if (situation.OwnFile) note[OwnFile] = jsonOf(*situation.OwnFile);
  std::string bytes = QJsonDocument(note).toJson(QJsonDocument::Compact).toStdString();
  bytes += '\n';
  return bytes += model::FormatGameFile(game);
}

std::optional<RecoveryCopy> parseRecoveryCopy(std::string_view bytes,
                                              const model::GameState& base) {
  const std::size_t end = bytes.find('\n');
  if (end == std::string_view::npos) return std::nullopt;
  const QByteArray line(bytes.data(), static_cast<qsizetype>(end));
  const QJsonObject note = QJsonDocument::fromJson(line).object();
  RecoveryCopy copy{{model::EmptyGame(base.Map)},
                    QDateTime::fromString(note[Time].toString(), Qt::ISODate)};
  if (!copy.time.isValid()) return std::nullopt;
  model::GameState& game = copy.situation.Game;
  game.Countries = base.Countries;
  try {
    if (model::ParseGameFile(bytes.substr(end + 1), "The copy", game)) return std::nullopt;
  } catch (const model::FatalError&) {
    return std::nullopt;
  }
  game.FileName = bytesOf(note[File]);
  game.RetreatsList = linesOf(note[Retreats]);
  game.AdjustmentsList = linesOf(note[Adjustments]);
  copy.situation.ReadOnly = note[ReadOnly].toBool();
  if (note.contains(OwnFile)) copy.situation.OwnFile = markOf(note[OwnFile].toObject());
  return copy;
}

}  // namespace orb::ui
