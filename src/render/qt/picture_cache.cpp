#include "render/qt/picture_cache.h"

#include "model/errors.h"
#include "model/files.h"

#include <QBuffer>
#include <QImageReader>

#include <algorithm>
#include <cmath>
#include <string>
#include <system_error>
#include <utility>

namespace orb::render {
namespace {

constexpr double TwipsPerInch = 1440;
constexpr double MetresPerInch = 0.0254;

/// The most that a picture may take in memory: a few bytes of a broken header can ask for anything.
qint64 LargestPicture(std::size_t fileSize) {
  constexpr qint64 always = 50'000'000;
  return always + 10 * static_cast<qint64>(fileSize);
}

/// What decoding takes at most: what is read of a row and of the picture, and the colour, for each
/// pixel. The height is negative where the rows run from top to bottom.
qint64 MemoryFor(QSize size) {
  constexpr qint64 bytesPerPixel = 8;
  return std::abs(bytesPerPixel * size.width() * size.height());
}

/// Reads through the core's file functions, so that a missing file gives the same message
/// everywhere.
QImage Decode(const std::filesystem::path& file) {
  const std::string bytes = model::ReadFile(file);
  QByteArray data = QByteArray::fromRawData(bytes.data(), static_cast<qsizetype>(bytes.size()));
  QBuffer buffer(&data);
  QImageReader reader(&buffer);
  const QSize size = reader.size();
  if (MemoryFor(size) > LargestPicture(bytes.size())) {
    throw model::FileError(
        "Cannot read " + file.string() + ": a picture of " + std::to_string(size.width()) + " by " +
        std::to_string(std::abs(size.height())) + " is too large for a file of " +
        std::to_string(bytes.size()) + " bytes.");
  }
  const QImage picture = reader.read();
  if (picture.isNull()) {
    throw model::FileError("Cannot read " + file.string() + ": it is not a bitmap picture.");
  }
  return picture.convertToFormat(QImage::Format_RGB32);
}

/// The pixels of a picture of 32 bits a pixel, whose rows leave no gaps.
PixelPicture PixelsOf(QImage& picture) {
  auto* pixels = reinterpret_cast<std::uint32_t*>(picture.bits());
  return {{pixels, static_cast<std::size_t>(picture.width() * picture.height())},
          picture.width(),
          picture.height()};
}

}  // namespace

std::optional<PictureCache::Stamp> PictureCache::StampOf(const std::filesystem::path& file) {
  std::error_code error;
  const auto time = std::filesystem::last_write_time(file, error);
  if (error) return std::nullopt;
  const auto size = std::filesystem::file_size(file, error);
  if (error) return std::nullopt;
  return Stamp{time, size};
}

void PictureCache::Fetch(const std::filesystem::path& file) {
  if (const auto stamp = StampOf(file)) {
    Entry& entry = entries_[file] = {};
    entry.Read = *stamp;
    entry.Fetched = std::async(std::launch::async, Decode, file);
  }
}

PictureCache::Entry& PictureCache::Current(const std::filesystem::path& file) {
  // Looked at on each call, so that an exchanged background shows without a restart.
  const auto stamp = StampOf(file);
  std::future<QImage> fetched;
  if (const auto found = entries_.find(file); found != entries_.end()) {
    Entry& entry = found->second;
    const bool isCurrent = stamp == entry.Read;
    if (isCurrent && !entry.Fetched.valid()) return entry;
    if (isCurrent) fetched = std::move(entry.Fetched);
    entries_.erase(found);
  }
  QImage picture = fetched.valid() ? fetched.get() : Decode(file);
  Entry& entry = entries_[file] = {};
  entry.Read = stamp.value_or(Stamp{});
  entry.Original = std::move(picture);
  return entry;
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

const HitMap* PictureCache::HitPicture(const Tinting& tinting) {
  const std::filesystem::path& file = tinting.HitPicture;
  const auto stamp = StampOf(file);
  if (!stamp) return nullptr;
  const auto found = hitPictures_.find(file);
  if (found != hitPictures_.end() && found->second.Read == *stamp) return &found->second.Hits;
  HitMap hits(model::ReadFile(file), file.string(), static_cast<int>(tinting.Shown.size()));
  return &hitPictures_.insert_or_assign(file, HitEntry{*stamp, std::move(hits)}).first->second.Hits;
}

const QImage& PictureCache::Tinted(const std::filesystem::path& file, QSize size,
                                   const Tinting& tinting) {
  const QImage& plain = Scaled(file, size);
  const HitMap* const hits = HitPicture(tinting);
  if (hits == nullptr) return plain;
  Entry& entry = entries_.at(file);
  if (entry.Tinted.size() == size && entry.TintedAs == tinting) return entry.Tinted;
  if (!entry.Tints) entry.Tints = TintColours(PixelsOf(entry.Original), *hits, tinting);
  entry.Tinted = plain.copy();
  entry.TintedAs = tinting;
  ApplyTints(PixelsOf(entry.Tinted), *hits, tinting, *entry.Tints);
  return entry.Tinted;
}

double Resolution(const QImage& picture) {
  // Bitmaps store pixels per metre, seldom whole pixels per inch; a broken one may store next to
  // none.
  return std::max(1.0, std::round(picture.dotsPerMeterX() * MetresPerInch));
}

QSizeF NaturalSize(const QImage& picture) {
  return QSizeF(picture.size()) * (TwipsPerInch / Resolution(picture));
}

}  // namespace orb::render
