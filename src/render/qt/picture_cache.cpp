#include "render/qt/picture_cache.h"

#include "model/errors.h"
#include "model/files.h"

#include <algorithm>
#include <cmath>
#include <string>

namespace orb::render {
namespace {

constexpr double TwipsPerInch = 1440;
constexpr double MetresPerInch = 0.0254;

/// Reads through the core's file functions, so that a missing file gives the same message
/// everywhere.
QImage Decode(const std::filesystem::path& file) {
  const std::string bytes = model::ReadFile(file);
  const QByteArray data =
      QByteArray::fromRawData(bytes.data(), static_cast<qsizetype>(bytes.size()));
  const QImage picture = QImage::fromData(data);
  if (picture.isNull()) {
    throw model::FileError("Cannot read " + file.string() + ": it is not a bitmap picture.");
  }
  return picture.convertToFormat(QImage::Format_RGB32);
}

}  // namespace

PictureCache::Entry& PictureCache::Current(const std::filesystem::path& file) {
  std::error_code error;
  // Time and size are looked at on each call, so that an exchanged background shows without a
  // restart.
  const auto time = std::filesystem::last_write_time(file, error);
  const auto size = error ? 0 : std::filesystem::file_size(file, error);
  const auto found = entries_.find(file);
  if (!error && found != entries_.end() && found->second.Time == time &&
      found->second.Size == size) {
    return found->second;
  }
  if (found != entries_.end()) entries_.erase(found);
  return entries_[file] = {time, size, Decode(file), {}};
}

const QImage& PictureCache::Picture(const std::filesystem::path& file) {
  return Current(file).Original;
}

const QImage& PictureCache::Scaled(const std::filesystem::path& file, QSize size) {
  Entry& entry = Current(file);
  if (entry.Original.size() == size) return entry.Original;
  if (entry.Scaled.size() != size) {
    entry.Scaled = entry.Original.scaled(size, Qt::IgnoreAspectRatio, Qt::SmoothTransformation)
                       .convertToFormat(QImage::Format_RGB32);
  }
  return entry.Scaled;
}

double Resolution(const QImage& picture) {
  // Bitmaps store pixels a metre, seldom whole pixels an inch; a broken one may store next to none.
  return std::max(1.0, std::round(picture.dotsPerMeterX() * MetresPerInch));
}

QSizeF NaturalSize(const QImage& picture) {
  return QSizeF(picture.size()) * (TwipsPerInch / Resolution(picture));
}

}  // namespace orb::render
